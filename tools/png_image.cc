// Reads and writes PNG files through libpng.
#include "png_image.h"

#include <algorithm>
#include <png.h>

#include <cerrno>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <memory>

#include "options.h"

namespace keli::tool {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File openFile(const std::string& path, const char* mode, const char* purpose) {
  File file(std::fopen(path.c_str(), mode));
  if (!file) throw UsageError(path + ": cannot " + purpose + ": " + std::strerror(errno));
  return file;
}

// libpng leaves by longjmp, which runs no destructors: everything that owns something lives here,
// and the functions between setjmp and libpng hold plain values alone.
class Reader {
 public:
  explicit Reader(std::FILE* file)
      : png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, onError, onWarning)),
        info_(png_ ? png_create_info_struct(png_) : nullptr),
        file_(file) {
    if (!info_) throw std::bad_alloc();
  }
  ~Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  bool readHeader() {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_init_io(png_, file_);
    png_read_info(png_, info_);
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    return true;
  }

  bool readRows(png_bytep* rows) {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_read_image(png_, rows);
    png_read_end(png_, nullptr);
    return true;
  }

  PngImage shape() const {
    PngImage image;
    image.width = static_cast<int>(png_get_image_width(png_, info_));
    image.height = static_cast<int>(png_get_image_height(png_, info_));
    image.channels = png_get_channels(png_, info_);
    return image;
  }
  const char* message() const { return message_; }

 private:
  static void onError(png_structp png, png_const_charp message) {
    auto* self = static_cast<Reader*>(png_get_error_ptr(png));
    std::snprintf(self->message_, sizeof self->message_, "%s", message);
    png_longjmp(png, 1);
  }
  static void onWarning(png_structp, png_const_charp) {}

  png_structp png_;
  png_infop info_;
  std::FILE* file_;
  char message_[128] = "";
};

}  // namespace

PngImage readPng(const std::string& path) {
  File file = openFile(path, "rb", "open");
  Reader reader(file.get());
  if (!reader.readHeader()) throw UsageError(path + ": not a readable PNG: " + reader.message());
  PngImage image = reader.shape();
  if (std::int64_t{image.width} * image.height > kMaxPixels) {
    throw UsageError(path + ": the image is too large");
  }
  image.samples.resize(image.rowBytes() * image.height);
  std::vector<png_bytep> rows(image.height);
  for (int y = 0; y < image.height; ++y) rows[y] = image.samples.data() + y * image.rowBytes();
  if (!reader.readRows(rows.data())) {
    throw UsageError(path + ": damaged PNG: " + reader.message());
  }
  return image;
}

void writePng(const std::string& path, const PngImage& image) {
  constexpr png_uint_32 kFormats[] = {PNG_FORMAT_GRAY, PNG_FORMAT_GA, PNG_FORMAT_RGB,
                                      PNG_FORMAT_RGBA};
  png_image description{};
  description.version = PNG_IMAGE_VERSION;
  description.width = static_cast<png_uint_32>(image.width);
  description.height = static_cast<png_uint_32>(image.height);
  description.format = kFormats[image.channels - 1];
  File file = openFile(path, "wb", "write");
  bool written =
      png_image_write_to_stdio(&description, file.get(), 0, image.samples.data(), 0, nullptr) != 0;
  bool closed = std::fclose(file.release()) == 0;
  if (!written || !closed) {
    throw UsageError(path +
                     ": cannot write: " + (written ? std::strerror(errno) : description.message));
  }
}

PngImage part(const PngImage& png, int x, int y, int width, int height) {
  PngImage out{width, height, png.channels, {}};
  for (int row = y; row < y + height; ++row) {
    for (int column = x; column < x + width; ++column) {
      std::size_t at = std::clamp(row, 0, png.height - 1) * png.rowBytes() +
                       std::size_t(std::clamp(column, 0, png.width - 1)) * png.channels;
      for (int k = 0; k < png.channels; ++k) out.samples.push_back(png.samples[at + k]);
    }
  }
  return out;
}

PngImage extended(const PngImage& png, int left, int top, int right, int bottom) {
  return part(png, -left, -top, left + png.width + right, top + png.height + bottom);
}

}  // namespace keli::tool
