// From files and options to arguments, by the arguments' roles alone: no function is known by name.
#include "run.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>

#include "maps.h"
#include "numbers.h"
#include "options.h"
#include "raster.h"
#include "registry/transform_spec.h"
#include "results.h"
#include "sample_type.h"

namespace keli::tool {
namespace {

using registry::Argument;
using registry::Function;
using registry::Role;
using registry::Type;
using registry::Value;

bool isInput(Role role) {
  return role == Role::kSource || role == Role::kSourceChannel || role == Role::kInOut;
}

bool isParameter(Role role) {
  return registry::isConstant(role) || role == Role::kScalar || role == Role::kScaleFactor ||
         role == Role::kOrder || role == Role::kTolerance || role == Role::kTopBorder ||
         role == Role::kLeftBorder || role == Role::kRangeMin || role == Role::kRangeMax ||
         role == Role::kNoise || role == Role::kGrayLevels;
}

// With a value if none is given.
bool isOptional(Role role) {
  return role == Role::kHint || role == Role::kAxis || role == Role::kInterpolation ||
         role == Role::kRoundMode || role == Role::kMaskSize || role == Role::kAnchor ||
         role == Role::kElement || role == Role::kDither;
}

bool isSize(Role role) {
  return role == Role::kRegion || role == Role::kSourceRegion || role == Role::kSourceRect;
}

// Of every channel its own, or one for all.
bool isPerChannel(Role role) { return role == Role::kLevelCount || role == Role::kLevelBound; }

bool isSupplied(Role role) {
  if (role == Role::kInOutWithin) return false;
  return registry::isImage(role) || registry::isResult(role) || isParameter(role) ||
         isPerChannel(role) || isOptional(role) || isSize(role) || role == Role::kLevels ||
         role == Role::kCompareOp || role == Role::kStep || role == Role::kSpec ||
         role == Role::kBuffer;
}

template <class Condition>
int count(const Function& f, Condition condition) {
  return static_cast<int>(std::count_if(f.arguments.begin(), f.arguments.end(),
                                        [&](const Argument& a) { return condition(a.role); }));
}

bool takes(const Function& f, Role role) {
  return count(f, [role](Role other) { return other == role; }) != 0;
}

std::string sizeText(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

void requireCallable(const Function& f) {
  std::string name = f.name;
  if (count(f, registry::isImage) == 0 || registry::takesBlocks(f))
    throw UsageError(name + " is not an image function");
  for (const Argument& a : f.arguments) {
    bool holdsSamples = registry::isImage(a.role) || a.type != Type::kNone;
    if (!isSupplied(a.role) || (holdsSamples && !isReal(a.type))) {
      throw UsageError(name + ": the tool cannot supply argument " + a.name + " (" +
                       registry::nameOf(a.role) + " " + registry::nameOf(a.type) + ")");
    }
  }
  int written = count(f, registry::isWritten);
  if (written > 1 || (written == 0 && count(f, registry::isResult) == 0)) {
    throw UsageError(name + ": the tool can only call functions that write one image or results");
  }
}

// Whether an option must be given, by its name.
std::map<std::string, bool> acceptedOptions(const Function& f) {
  std::map<std::string, bool> accepted = {{"--roi", false}};
  if (count(f, isInput) == 0 || takes(f, Role::kSourceRegion)) accepted["--size"] = false;
  if (takes(f, Role::kMap)) accepted["--map"] = true;
  bool levelsGiven = count(f, [](Role role) { return role == Role::kLevels; }) != 0;
  for (const Argument& a : f.arguments) {
    if (registry::isWritten(a.role)) accepted["-o"] = true;
    if (a.role == Role::kCounts) accepted["-o"] = false;
    if (a.role == Role::kMask) accepted["--mask"] = true;
    if (a.role == Role::kSourceChannel) accepted["--srcChannel"] = false;
    if (a.role == Role::kDestinationChannel) accepted["--dstChannel"] = false;
    if (registry::isWritten(a.role) && a.role != Role::kInOut) accepted["--dst"] = false;
    bool counted = a.role == Role::kLevelCount && levelsGiven;  // they are their list's length
    if (isParameter(a.role) || a.role == Role::kLevels || a.role == Role::kCompareOp ||
        (isPerChannel(a.role) && !counted)) {
      accepted["--" + std::string(a.name)] = true;
    }
    if (isOptional(a.role)) accepted["--" + std::string(a.name)] = false;
  }
  return accepted;
}

void requireOptions(const Function& f, const Options& options) {
  std::string name = f.name;
  std::map<std::string, bool> accepted = acceptedOptions(f);
  for (const auto& [option, value] : options.values) {
    if (accepted.count(option)) continue;
    std::string list;
    for (const auto& [known, required] : accepted) list += " " + known;
    throw UsageError(name + " takes no option " + option + "; it takes" + list);
  }
  for (const auto& [option, required] : accepted) {
    if (required && !options.find(option)) throw UsageError(name + " needs option " + option);
  }
  if (options.find("--size") && options.find("--dst")) {
    throw UsageError("--size and --dst exclude each other; --roi picks a part of an image");
  }
  std::size_t inputs = count(f, isInput);
  if (options.files.size() != inputs) {
    throw UsageError(name + " needs " + std::to_string(inputs) + " input file(s), got " +
                     std::to_string(options.files.size()));
  }
}

class Run {
 public:
  Run(const Function& f, const Options& options)
      : function_(f), options_(options), images_(f.arguments.size), numbers_(f, options) {}

  int operator()() {
    loadInputs();
    makeDestination();
    chooseRegion();
    std::vector<Value> values;
    for (std::size_t i = 0; i < images_.size(); ++i) values.push_back(valueOf(i));
    KelStatus status = function_(values.data()).status;
    if (status >= 0) writePicture();
    std::printf("%s (%d)\n", registry::statusName(status), static_cast<int>(status));
    if (status >= 0) numbers_.print(options_.find("-o") == nullptr);
    return status >= 0 ? 0 : 1;
  }

 private:
  struct Image {
    Raster raster;
    std::string file;           // for messages
    KeliSize size;              // without what lies around
    KeliPoint origin = {0, 0};  // of the image in the raster
  };

  void loadInputs() {
    auto file = options_.files.begin();
    for (std::size_t i = 0; i < images_.size(); ++i) {
      const Argument& a = function_.arguments[i];
      if (isInput(a.role)) {
        load(i, *file++);
        if (!frame_.width) frame_ = images_[i]->size;
        if (a.role == Role::kInOut) output_ = &*images_[i];
      } else if (a.role == Role::kMask) {
        const std::string& mask = *options_.find("--mask");
        PngImage png = readPng(mask);
        images_[i] = Image{makeMask(png), mask, {png.width, png.height}};
      }
    }
  }

  // What functions read around the region exists around the whole picture.
  void load(std::size_t i, const std::string& file) {
    const Argument& a = function_.arguments[i];
    PngImage png = readPng(file);
    KeliSize size = {png.width, png.height}, mask = {1, 1};
    KeliPoint anchor = {0, 0};
    if (isInput(a.role) && function_.reach == registry::Reach::k3x3) {
      mask = {3, 3};
      anchor = {1, 1};
    } else if (isInput(a.role) && function_.reach == registry::Reach::kMask) {
      mask = numbers_.maskSize();
      anchor = numbers_.anchor();
    }
    bool extends =
        anchor.x >= 0 && anchor.y >= 0 && anchor.x < mask.width && anchor.y < mask.height;
    if (extends) {  // else the function refuses the mask
      png =
          extended(png, anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y);
    } else {
      anchor = {0, 0};
    }
    images_[i] = Image{Raster(a.type, a.layout, png), file, size, anchor};
  }

  // The region without --roi: the first input's size, else that of --dst, else --size. Where the
  // source has a size of its own, that of the destination comes from --dst or --size.
  void makeDestination() {
    for (std::size_t i = 0; i < images_.size(); ++i) {
      const Argument& a = function_.arguments[i];
      if (!registry::isWritten(a.role) || a.role == Role::kInOut) continue;
      if (const std::string* file = options_.find("--dst")) {
        load(i, *file);
        destination_ = images_[i]->size;
        if (!frame_.width) frame_ = destination_;
      } else {
        bool own = takes(function_, Role::kSourceRegion) && options_.find("--size");
        if (!frame_.width) frame_ = sizeOption();
        destination_ = own ? sizeOption() : frame_;
        images_[i] = Image{Raster(a.type, a.layout, destination_.width, destination_.height),
                           "the result", destination_};
      }
      output_ = &*images_[i];
    }
    if (const std::string* map = options_.find("--map"))
      maps_ = makeMaps(*map, frame_, destination_);
  }

  KeliSize sizeOption() const {
    const std::string* text = options_.find("--size");
    if (!text) throw UsageError(std::string(function_.name) + " needs --size WxH or --dst FILE");
    std::vector<Value> n = parseNumbers("--size", *text, Type::k32s, 2, 'x');
    if (n[0].i < 1 || n[1].i < 1) throw UsageError("--size: " + *text + " is empty");
    if (n[0].i * n[1].i > kMaxPixels) throw UsageError("--size: " + *text + " is too large");
    return {static_cast<int>(n[0].i), static_cast<int>(n[1].i)};
  }

  void chooseRegion() {
    region_ = {0, 0, frame_.width, frame_.height};
    if (const std::string* text = options_.find("--roi")) {
      std::vector<Value> n = parseNumbers("--roi", *text, Type::k32s, 4);
      region_ = {static_cast<int>(n[0].i), static_cast<int>(n[1].i), static_cast<int>(n[2].i),
                 static_cast<int>(n[3].i)};
      if (region_.width < 1 || region_.height < 1) {
        throw UsageError("--roi: " + *text + " is empty");
      }
    }
    for (std::size_t i = 0; i < images_.size(); ++i) {
      if (images_[i] && !wholeSize(function_.arguments[i])) requireRegionInside(*images_[i]);
    }
  }

  // Whether all of an image takes part, whatever the region of the source is.
  bool wholeSize(const Argument& a) const {
    return takes(function_, Role::kSourceRegion) && registry::isWritten(a.role);
  }

  void requireRegionInside(const Image& image) const {
    const KeliRect& r = region_;
    int width = image.size.width, height = image.size.height;
    if (r.x >= 0 && r.y >= 0 && r.width <= width && r.height <= height && r.x <= width - r.width &&
        r.y <= height - r.height) {
      return;
    }
    throw UsageError("the region of " + sizeText(r.width, r.height) + " at (" +
                     std::to_string(r.x) + ", " + std::to_string(r.y) + ") leaves " + image.file +
                     ", which has " + sizeText(width, height));
  }

  Value valueOf(std::size_t i) {
    const Argument& a = function_.arguments[i];
    Value value{};
    if (images_[i]) {
      value.p = addressOf(*images_[i], a);
    } else if (a.role == Role::kMap) {
      value.p = mapsGiven_++ == 0 ? maps_.x.data() : maps_.y.data();
      step_ = destination_.width * static_cast<int>(sizeof(float));
    } else if (a.role == Role::kStep) {
      value.i = step_;
    } else if (isSize(a.role)) {
      value = sizeFor(a.role);
    } else if (a.role == Role::kSpec) {
      value.p = specification();
    } else if (a.role == Role::kBuffer) {
      value.p = nullptr;
    } else {
      value = numbers_.valueOf(i);
    }
    return value;
  }

  // Sources of which a rectangle is used are given as a whole, and so are destinations of a size of
  // their own.
  const void* addressOf(Image& image, const Argument& a) {
    step_ = image.raster.step();
    bool whole = wholeSize(a) || (isInput(a.role) && takes(function_, Role::kSourceRect));
    int x = whole ? 0 : region_.x, y = whole ? 0 : region_.y;
    return image.raster.argument(x + image.origin.x, y + image.origin.y, channelOf(a));
  }

  Value sizeFor(Role role) const {
    Value value{};
    if (role == Role::kSourceRect) {
      value.rect = region_;
    } else if (role == Role::kSourceRegion && takes(function_, Role::kSourceRect)) {
      value.size = frame_;
    } else if (role == Role::kRegion && takes(function_, Role::kSourceRegion)) {
      value.size = destination_;
    } else {
      value.size = {region_.width, region_.height};
    }
    return value;
  }

  // Of a transform of the region, whose inverse alone is divided.
  const void* specification() {
    const KeliSize size = {region_.width, region_.height};
    if (registry::TransformSpec::needsPowersOfTwo(function_) &&
        ((size.width & (size.width - 1)) != 0 || (size.height & (size.height - 1)) != 0)) {
      throw UsageError(std::string(function_.name) + " needs a region whose sides are powers of 2");
    }
    spec_.emplace(function_, size, 2);
    if (!spec_->get()) throw UsageError("there is no memory for a specification of this size");
    return spec_->get();
  }

  int channelOf(const Argument& a) const {
    const char* option = a.role == Role::kSourceChannel        ? "--srcChannel"
                         : a.role == Role::kDestinationChannel ? "--dstChannel"
                                                               : nullptr;
    const std::string* text = option ? options_.find(option) : nullptr;
    if (!text) return 0;
    std::int64_t channel = parseNumbers(option, *text, Type::k32s, 1)[0].i;
    if (channel < 0 || channel >= storedChannels(a.layout)) {
      throw UsageError(std::string(option) + ": " + *text + " is out of range");
    }
    return static_cast<int>(channel);
  }

  void writePicture() const {
    const std::string* file = options_.find("-o");
    if (file) writePng(*file, output_ ? picture(*output_) : drawHistograms(numbers_.histograms()));
  }

  static PngImage picture(const Image& image) {
    return part(image.raster.toPng(), image.origin.x, image.origin.y, image.size.width,
                image.size.height);
  }

  const Function& function_;
  const Options& options_;
  std::vector<std::optional<Image>> images_;  // one for each argument that is an image
  Numbers numbers_;
  std::optional<registry::TransformSpec> spec_;
  Image* output_ = nullptr;
  KeliSize frame_{};
  KeliSize destination_{};
  Maps maps_;
  int mapsGiven_ = 0;
  KeliRect region_{};
  int step_ = 0;  // of the last image in the list
};

}  // namespace

int runFunction(const Function& function, const std::vector<std::string>& words) {
  requireCallable(function);
  Options options = parseOptions(words);
  requireOptions(function, options);
  return Run(function, options)();
}

}  // namespace keli::tool
