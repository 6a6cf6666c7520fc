// What a colour loses on its way to another space and back: every space and type, as measured here,
// against the table in the documentation.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>

#include "reference/pixels.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

constexpr std::size_t kRow = 1 << 16;  // pixels

// A conversion of C3 to C3, called with one row.
template <class T>
std::vector<T> converted(const Function& f, const std::vector<T>& src) {
  std::vector<T> dst(src.size());
  const int width = static_cast<int>(src.size() / 3);
  const int step = static_cast<int>(sizeof(T)) * 3 * width;
  registry::Value values[5] = {};
  values[0].p = src.data();
  values[1].i = step;
  values[2].p = dst.data();
  values[3].i = step;
  values[4].size = {width, 1};
  EXPECT_EQ(f(values).status, kelStatusOk) << f.name;
  return dst;
}

// Level i of count ones that are spread over the whole range of T.
template <class T>
T levelOf(std::size_t i, std::size_t count) {
  const double part = static_cast<double>(i) / static_cast<double>(count - 1);
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(part);
  using Limits = std::numeric_limits<T>;
  return static_cast<T>(Limits::lowest() + std::lround(part * (Limits::max() - Limits::lowest())));
}

// Rows of all colours whose components are among `count` levels.
template <class T, class F>
void forColors(std::size_t count, const F& f) {
  std::vector<T> row;
  for (std::size_t i = 0; i < count * count * count; ++i) {
    for (const std::size_t k : {i / count / count, i / count % count, i % count})
      row.push_back(levelOf<T>(k, count));
    if (row.size() == 3 * kRow || i + 1 == count * count * count) {
      f(row);
      row.clear();
    }
  }
}

// The largest and the mean difference of samples, in parts of full scale for floats, as they stand
// in the documentation.
template <class T>
std::string lossOf(const Function& there, const Function& back) {
  double most = 0, sum = 0;
  std::size_t samples = 0;
  forColors<T>(sizeof(T) == 1 ? 256 : 129, [&](const std::vector<T>& row) {
    const std::vector<T> found = converted(back, converted(there, row));
    for (std::size_t i = 0; i < row.size(); ++i) {
      const double error = std::fabs(static_cast<double>(found[i]) - static_cast<double>(row[i]));
      most = std::max(most, error);
      sum += error;
    }
    samples += row.size();
  });
  char text[64];
  const bool real = std::is_floating_point_v<T>;
  std::snprintf(text, sizeof text, real ? "%.1e | %.1e" : "%.0f | %.3f", most,
                sum / static_cast<double>(samples));
  return text;
}

std::string lossOf(Type type, const Function& there, const Function& back) {
  return type == Type::k8u    ? lossOf<Kel8u>(there, back)
         : type == Type::k16u ? lossOf<Kel16u>(there, back)
         : type == Type::k16s ? lossOf<Kel16s>(there, back)
                              : lossOf<Kel32f>(there, back);
}

// The rows of the table: space and type to the rest.
std::map<std::string, std::string> documented() {
  std::ifstream page(KELI_DOCS "/color.md");
  std::map<std::string, std::string> rows;
  for (std::string line; std::getline(page, line);) {
    std::istringstream words(line);
    std::string bar, space, type;
    words >> bar >> space >> bar >> type;
    const std::size_t rest = line.find(type + " | ");
    if (registry::find("keliRGBTo" + space + "_" + type + "_C3R") != nullptr)
      rows[space + " " + type] = line.substr(rest + type.size() + 3);
  }
  return rows;
}

TEST(Color, RoundTripsLoseWhatIsDocumented) {
  const std::map<std::string, std::string> rows = documented();
  std::size_t trips = 0;
  for (const Function& there : registry::functions()) {
    const std::string name = there.name, operation = there.operation;
    const std::string space = operation.rfind("RGBTo", 0) == 0 ? operation.substr(5) : "";
    if (space.empty()) continue;
    const std::string suffix = name.substr(4 + operation.size());
    const Function* const back = registry::find("keli" + space + "ToRGB" + suffix);
    if (back == nullptr || std::string(there.descriptor) != "C3R") continue;
    ++trips;
    const Type type = there.arguments[0].type;
    const std::string row = space + " " + registry::nameOf(type);
    ASSERT_EQ(rows.count(row), 1u) << "docs/color.md has no row for " << row;
    EXPECT_EQ(rows.at(row), lossOf(type, there, *back) + " |") << row;
  }
  EXPECT_EQ(trips, rows.size());
}

}  // namespace
}  // namespace keli::test
