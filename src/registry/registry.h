// Reflection over the exported functions, for tests, benchmarks, the tool and bindings: names,
// arguments with their roles, the order of checks, documentation, and a uniform way to call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/types.h"
#include "keli.h"

namespace keli::registry {

// Sample types by their codes; kNone for arguments that hold no samples.
// k1u: eight pixels a byte, the first in its most significant bit.
enum class Type : std::uint8_t {
  kNone,
  k1u,
  k8u,
  k8s,
  k16u,
  k16s,
  k32u,
  k32s,
  k64s,
  k32f,
  k64f,
  k16sc,
  k32sc,
  k32fc
};

// What an argument is for. Roles with "Channel": the pointer addresses one channel of an
// interleaved image, and only that channel takes part.
enum class Role : std::uint8_t {
  kSource,
  kSourceChannel,
  kDestination,
  kDestinationChannel,
  kInOut,
  kInOutWithin,  // written as a whole, and read in the source region, which its pointer addresses
  kMask,
  kMap,           // a coordinate for each pixel of the region: first of columns, then of rows
  kStep,          // bytes between the rows of the image before it in the list
  kRegion,        // KeliSize of all images, or of all but the sources
  kSourceRegion,  // KeliSize of the sources
  kSourceRect,    // a part of it
  kMaskSize,
  kAnchor,      // the pixel of the mask that lies on the destination pixel
  kElement,     // the mask's bytes, row after row: a structuring element
  kTopBorder,   // destination rows above the source
  kLeftBorder,  // destination columns left of it
  kConstant,    // a value or, for several channels, an array of them
  kShift,       // the same, counts of bits
  kLower,       // the same, the lower end of a range
  kUpper,       // its upper end, later in the list
  kScalar,      // a value, whatever the layout
  kTolerance,
  kScaleFactor,
  kCompareOp,
  kHint,
  kAxis,
  kInterpolation,
  kRoundMode,
  kBitOffset,  // of the first pixel of a 1u image
  kNoise,      // a percentage
  kDither,
  kGrayLevels,  // of a result
  kRangeMin,    // the ends of a range of values
  kRangeMax,
  kResult,      // receives a value or, for several channels, an array of them
  kCounts,      // receives a histogram or, for several channels, one for each
  kLevels,      // its boundaries, likewise
  kLevelsOut,   // receives them
  kLevelCount,  // how many there are: an int or an array of them
  kLevelBound,  // the first or the last of them
  kOrder,       // three channel indexes
  kExtent,      // a width or height
  kStepOut,     // receives a step
  kBlock,       // a block to release
  kSpec,        // a specification structure that is read
  kOwnedSpec,   // one that is released
  kSpecOut,     // receives the address of one
  kSizeOut,     // receives a size
  kBuffer,      // scratch memory or null
  kNumber,      // an int that chooses something
  kUnread,      // accepted and ignored
};

// kWidth and kArea are made by C3 and C4 alone, which are C1 over more samples; kChannels by
// histograms of several channels, kLevels by those of one.
enum class Check : std::uint8_t {
  kNull,
  kWidth,
  kArea,
  kSize,
  kStep,
  kValues,
  kDivisor,
  kOrder,
  kOperation,
  kThresholds,
  kBounds,
  kEpsilon,
  kSpan,
  kBits,
  kBorders,
  kMaskSize,
  kBoxSize,
  kAnchor,
  kElement,
  kRow,
  kAxis,
  kSizes,
  kInterpolation,
  kNullSpec,
  kSpec,
  kNoise,
  kGrayLevels,
  kChannels,
  kLevels,
};

// Which source pixels a destination pixel depends on: the one at its place, the 3 x 3 around that,
// those that the mask's size and anchor tell, or any.
enum class Reach : std::uint8_t { kPixel, k3x3, kMask, kImage };

// What a check answers, and when; kelStatusOk where the text tells both.
struct CheckInfo {
  KelStatus status;
  const char* text;
};

template <class T>
struct Span {
  const T* data;
  std::size_t size;
  const T* begin() const { return data; }
  const T* end() const { return data + size; }
  const T& operator[](std::size_t i) const { return data[i]; }
};

struct Argument {
  const char* name;
  Role role;
  Type type;      // of the samples
  Layout layout;  // of an image
  int length;     // of an array (planes, constants), 0 for a single value or pointer
};

// What the functions of one shape of an operation share.
struct Entry {
  const char* group;
  const char* brief;
  const char* formula;
  const char* text;
  Span<Check> checks;
};

// An argument's value: p for pointers and arrays, i for integers, f for floating samples.
union Value {
  const void* p;
  std::int64_t i;
  double f;
  KeliSize size;
  KeliRect rect;
  KeliPoint point;
  Kel16sc c16;
  Kel32sc c32;
  Kel32fc cf;
};

// What a call returned: a status, or a pointer for the functions that return one.
struct Result {
  KelStatus status;
  const void* pointer;
};

struct Call {
  Result (*invoke)(void (*function)(), const Value* values);
  void (*function)();
};

struct Function {
  const char* name;
  const char* operation;
  const char* descriptor;
  const char* prototype;
  const Entry* entry;
  Span<Argument> arguments;
  bool inPlace;
  bool masked;
  bool parallel;  // large regions are shared out among threads
  Reach reach;
  Call call;

  // values: one for each argument, in order.
  Result operator()(const Value* values) const { return call.invoke(call.function, values); }
};

struct Status {
  KelStatus value;
  const char* name;
  const char* text;
};

Span<Function> functions();
Span<Status> statuses();

// Null when there is none.
const Function* find(std::string_view name);
// "kelStatusBadSize", or "unknown status" for a value that no function returns.
const char* statusName(KelStatus status);

// Of a sample; of 1u, of the eight that share a byte.
std::size_t bytesOf(Type type);
const char* nameOf(Type type);      // the type code: "8u"
const char* nameOf(Layout layout);  // "AC4"
const char* nameOf(Role role);      // as the tables write it: "sourceChannel"
CheckInfo about(Check check);
// Whether a member makes a check of its entry: some are for arrays, or for C3 and C4, alone.
bool makes(const Function& function, Check check);
bool isImage(Role role);
bool isWritten(Role role);
// An image of 8 x 8 samples, one after another: one that no step follows.
bool isBlock(const Function& function, std::size_t argument);
bool takesBlocks(const Function& function);
bool isConstant(Role role);  // one value, or one for each channel
bool isResult(Role role);    // written, and no image
bool isPointer(const Argument& argument);

}  // namespace keli::registry
