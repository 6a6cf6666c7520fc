// Row kernels of Copy, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"
#include "core/planes.h"

namespace keli::data {

using CopyBand = void (*)(const Band<1>&);
using CopyPlanesBand = void (*)(const PlanesBand&);

struct CopyRows {
  CopyBand bytes;        // n bytes
  BySize<CopyBand> ac4;  // n samples, as the two that follow
  BySize<CopyBand> c3c;
  BySize<CopyBand> c4c;
};

// n counts pixels.
struct CopyChannelsRows {
  BySize<CopyBand> c3c1;
  BySize<CopyBand> c4c1;
  BySize<CopyBand> c1c3;
  BySize<CopyBand> c1c4;
  BySize<CopyBand> ac4c3;
  BySize<CopyBand> c3ac4;
};

struct CopyPlanesRows {
  BySize<CopyPlanesBand> c3p3;
  BySize<CopyPlanesBand> c4p4;
  BySize<CopyPlanesBand> p3c3;
  BySize<CopyPlanesBand> p4c4;
};

const CopyRows& copyRows();
const CopyChannelsRows& copyChannelsRows();
const CopyPlanesRows& copyPlanesRows();

}  // namespace keli::data
