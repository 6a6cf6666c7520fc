#include "registry/transform_spec.h"

#include <string>

namespace keli::registry {
namespace {

bool isCosine(const Function& transform) {
  return std::string_view(transform.operation).substr(0, 3) == "DCT";
}

// keliFFTFwd_RToPack_8u32s_C1RSfs belongs to keliFFT<action>_R_32s, keliDCTFwd_32f_C1R to
// keliDCTFwd<action>_32f.
const Function* belongingTo(const Function& transform, const char* action) {
  const std::string operation = transform.operation;
  if (isCosine(transform)) return find("keli" + operation + action + "_32f");
  const Type from = transform.arguments[0].type, to = transform.arguments[2].type;
  const char* form = from == Type::k32fc ? "_C_32fc" : from == to ? "_R_32f" : "_R_32s";
  return find("keli" + operation.substr(0, 3) + action + form);
}

int orderOf(int side) {
  int order = 0;
  while ((1 << order) < side) ++order;
  return order;
}

}  // namespace

bool TransformSpec::isTakenBy(const Function& function) {
  for (const Argument& a : function.arguments) {
    if (a.role == Role::kSpec) return isImage(function.arguments[0].role);
  }
  return false;
}

bool TransformSpec::needsPowersOfTwo(const Function& function) {
  return isTakenBy(function) && std::string_view(function.operation).substr(0, 3) == "FFT";
}

TransformSpec::TransformSpec(const Function& transform, KeliSize size, int flag)
    : free_(belongingTo(transform, "Free")) {
  const Function& initAlloc = *belongingTo(transform, "InitAlloc");
  Value values[5] = {};
  values[0].p = &spec_;
  std::size_t next = 1;
  if (needsPowersOfTwo(transform)) {
    values[next++].i = orderOf(size.width);
    values[next++].i = orderOf(size.height);
  } else {
    values[next++].size = size;
  }
  if (!isCosine(transform)) values[next++].i = flag;
  values[next].i = kelAlgHintNone;
  if (initAlloc(values).status != kelStatusOk) return;
  Value query[2] = {};
  query[0].p = spec_;
  query[1].p = &scratchBytes_;
  (*belongingTo(transform, "GetBufSize"))(query);
}

TransformSpec::~TransformSpec() {
  if (spec_ == nullptr) return;
  Value value = {};
  value.p = spec_;
  (*free_)(&value);
}

}  // namespace keli::registry
