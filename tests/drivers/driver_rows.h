// Small operations over every row driver of the library, compiled for every target: what the
// drivers' tests and benchmarks run. Each stands for a kind of kernel, not for a function of the
// library.
#pragma once

#include "core/band.h"
#include "core/planes.h"

namespace keli::test {

struct DriverRows {
  using Map1 = void (*)(const Band<1>&);
  using Map2 = void (*)(const Band<2>&);
  using MapC = void (*)(const Band<1>&, const void* constants);
  using Planes = void (*)(const PlanesBand&);

  Map1 invert8u;      // 255 - a
  Map1 invert8uAC4;   // the same, fourth samples kept
  Map1 invert8uOfC3;  // the same for the first of every three samples
  Map1 widen8u16s;    // a, as 16s
  Map1 widen16s32f;
  Map1 narrow16s8u;  // saturated
  Map1 negate64f;
  Map2 add8u;  // saturated
  Map2 add32f;
  MapC addC8uC1;  // saturated, wrapping nowhere
  MapC addC8uC3;
  MapC addC16sC4;
  MapC addC32fC3;
  Planes rotateC3;  // channels 1, 2, 0
  Planes rotateC3P3;
  Planes rotateP3AC4;
  Planes rotateAC4C3_16u;
  Planes grayC3C1_32f;  // the sum of the channels
};

const DriverRows& driverRows();

}  // namespace keli::test
