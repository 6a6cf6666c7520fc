// libyuv's equivalent of YCbCr: planes of studio range to pixels, with factors of 6 fractional
// bits.
#include <libyuv.h>

#include "tables.h"

namespace keli::bench {
namespace {

Work toPixels(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    libyuv::I444ToRAW(s->plane(0), s->step(), s->plane(1), s->step(), s->plane(2), s->step(),
                      d->data(), d->step(), s->width(), s->height());
  };
}

const AddPeers kPeers({{"keliYCbCrToRGB_8u_P3C3R", "libyuv I444ToRAW", toPixels, 4}});

}  // namespace
}  // namespace keli::bench
