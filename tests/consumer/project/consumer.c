/* Uses the library as a program elsewhere would: exit code 0 if all that it did came out right. */
#include <keli.h>
#include <stdio.h>
#include <string.h>

static int fail(const char* what) {
  fprintf(stderr, "consumer: %s\n", what);
  return 1;
}

static int checkVersion(void) {
  const KelLibraryVersion* v = keliGetLibVersion();
  char text[64];
  snprintf(text, sizeof text, "%d.%d.%d", (int)v->major, (int)v->minor, (int)v->majorBuild);
  if (strcmp(text, CONSUMER_VERSION) != 0) return fail(text);
  return 0;
}

/* Sets a region inside an image and copies it into another: the bytes around it must stay. */
static int checkImages(Kel8u* a, int aStep, Kel8u* b, int bStep) {
  const KeliSize all = {20, 6}, inner = {17, 4};
  const Kel8u black[3] = {0, 0, 0}, colour[3] = {10, 20, 30};
  Kel8u* const place = b + 2 * bStep + 3;
  int x, y;
  if (keliSet_8u_C3R(colour, a, aStep, all) != kelStatusOk) return fail("set");
  if (keliSet_8u_C3R(black, b, bStep, all) != kelStatusOk) return fail("set");
  if (keliCopy_8u_C3R(a, aStep, place, bStep, inner) != kelStatusOk) return fail("copy");
  for (y = 0; y < all.height; ++y) {
    for (x = 0; x < all.width; ++x) {
      const int inside = x >= 1 && x < 18 && y >= 2;
      if (memcmp(b + y * bStep + 3 * x, inside ? colour : black, 3) != 0) return fail("pixels");
    }
  }
  if (keliCopy_8u_C3R(NULL, aStep, b, bStep, all) != kelStatusNullPointer) return fail("null");
  return 0;
}

int main(void) {
  int aStep = 0, bStep = 0, status;
  Kel8u* a = keliMalloc_8u_C3(20, 6, &aStep);
  Kel8u* b = keliMalloc_8u_C3(20, 6, &bStep);
  if (a == NULL || b == NULL) return fail("allocation");
  status = checkVersion() || checkImages(a, aStep, b, bStep);
  keliFree(a);
  keliFree(b);
  return status;
}
