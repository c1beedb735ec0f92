// Table-driven tests of the exports. A family's test is a table of rows: a
// row names one export, the images and arrays it takes, how to call it and a
// model of what it writes (a plain per-element loop). The shared runner then
// runs every row
//   - on awkward shapes (odd widths around the vector sizes, one row, one
//     column, 1x1, padded rows, odd offsets, bottom-up rows), under every CPU
//     level, with guard bytes around every image: every byte of every buffer
//     must be what the model says, inside the ROI and outside it;
//   - through the bad-argument sweep: each pointer NULL in turn, bad sizes and
//     (where the export checks them) bad steps, each alone and combined, must
//     give the status of the first failing check in the row's check order and
//     write nothing.
// A row whose `expect` is an error status is a bad-parameter row: it must
// return that status, after the checks that come before it, writing nothing.
//
//   PEL_ROWS(Copy, CopyRows)   // a std::vector<Row> CopyRows() of the family
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "peli.h"
#include "support/image.h"

namespace peltest {

// ---- The images and arrays an export takes ------------------------------------

struct ElemType {
  int bytes;
  char kind;  // 'u' unsigned, 's' signed, 'f' float, 'c' complex float
};
template <class T>
constexpr ElemType ElemOf() {
  if constexpr (std::is_same_v<T, Pel32fc>) return {8, 'c'};
  else if constexpr (std::is_floating_point_v<T>) return {int(sizeof(T)), 'f'};
  else if constexpr (std::is_signed_v<T>) return {int(sizeof(T)), 's'};
  else return {int(sizeof(T)), 'u'};
}

enum class Use { In, Out, InOut };

// Which steps an export checks, and against what (NonZero: only a zero step
// is refused; negative steps walk upwards).
enum class StepRule { None, Positive, RowBytes, NonZero };

class AnyView;
using Fill = std::function<void(AnyView&, std::mt19937&)>;

// Pointers: NULL -> -8; Sizes: width or height below 1 -> -6; Steps: a step
// below its StepRule -> the row's badStepStatus (-16); LatePointers: a NULL
// latePointer argument -> -8; Param: the row's own `expect` status;
// ZeroSizes: a width or height of 0 -> the warning pelStatusNoOperation (1),
// for exports that treat an empty size as nothing to do (Sizes then covers
// negative sizes only). Sizes are swept only when the order has Sizes or
// ZeroSizes.
enum class Check { Pointers, Sizes, Steps, LatePointers, Param, ZeroSizes };

struct Arg {
  ElemType type{1, 'u'};
  int channels = 1;
  Use use = Use::In;
  // Size of the image from the call's ROI; empty: the ROI itself.
  std::function<PeliSize(PeliSize)> size{};
  // > 0: a fixed array of this many elements (constants, results), not an
  // image shaped by the ROI.
  int count = 0;
  // Images of one group share one step argument (the planes of a planar
  // image); -1: a step of its own.
  int stepGroup = -1;
  // Passed by value (a constant read through Call::v): no pointer to check.
  bool byValue = false;
  StepRule step = StepRule::None;
  // How elements are filled; empty: random bits, finite floats.
  Fill fill{};
  // Elements at the end of the image that the export must not touch, not
  // even read (a channel form ends at its channel of the last pixel); the
  // fenced shapes cut them off.
  int unusedTail = 0;
  // Its NULL pointer is caught at Check::LatePointers (after other checks)
  // rather than with the other pointers.
  bool latePointer = false;
  // A work buffer: what the export leaves in it is its own business (the
  // bytes around it are still checked, and a failing call must not write it).
  bool scratch = false;
  // A result the export sets to zero once this check has passed: a call that
  // fails at a later check leaves zeros in it.
  std::optional<Check> zeroedAfter{};
  // Float images whose model is exact while the export rounds along a long
  // computation (transforms): inside the ROI an element may differ from the
  // model by this fraction of the largest magnitude in the model's image.
  // Bytes outside the ROI must still be equal.
  double tolerance = 0;
};

// Member by member: a partial aggregate initializer warns with -Wextra.
inline Arg ArgOf(ElemType type, int channels, Use use) {
  Arg a;
  a.type = type;
  a.channels = channels;
  a.use = use;
  return a;
}
template <class T>
Arg In(int channels = 1) {
  return ArgOf(ElemOf<T>(), channels, Use::In);
}
template <class T>
Arg Out(int channels = 1) {
  return ArgOf(ElemOf<T>(), channels, Use::Out);
}
template <class T>
Arg InOut(int channels = 1) {
  return ArgOf(ElemOf<T>(), channels, Use::InOut);
}
// An array of `count` constants the export reads through a pointer.
template <class T>
Arg Consts(int count) {
  Arg a = In<T>(1);
  a.count = count;
  return a;
}
// A constant passed by value.
template <class T>
Arg Value() {
  Arg a = Consts<T>(1);
  a.byValue = true;
  return a;
}
// An array of `count` results the export writes.
template <class T>
Arg Results(int count) {
  Arg a = Out<T>(1);
  a.count = count;
  return a;
}

// ---- Typed views, for calls and models ----------------------------------------

class AnyView {
 public:
  AnyView(AnyImage* img, ElemType type, int channels) : img_(img), type_(type), channels_(channels) {}
  AnyImage& image() { return *img_; }
  ElemType type() const { return type_; }
  int width() const { return img_->layout().width; }
  int height() const { return img_->layout().height; }
  int channels() const { return channels_; }
  template <class T>
  T& at(int x, int y, int c = 0) {
    return *reinterpret_cast<T*>(img_->bytesAt(x, y, c));
  }

 private:
  AnyImage* img_;
  ElemType type_;
  int channels_;
};

template <class T>
class View {
 public:
  explicit View(AnyView v) : v_(v) {}
  T& operator()(int x, int y, int c = 0) { return v_.at<T>(x, y, c); }
  T& operator[](int i) { return v_.at<T>(i, 0, 0); }  // fixed arrays
  int width() const { return v_.width(); }
  int height() const { return v_.height(); }
  int channels() const { return v_.channels(); }

 private:
  AnyView v_;
};

// What a row's call sees: a pointer and step for each argument (or NULL and a
// bad step when the sweep says so) and the ROI.
class Call {
 public:
  PeliSize roi{};
  PeliSizeL roiL() const { return PeliSizeL{roi.width, roi.height}; }

  // Pointer to the first ROI element of argument `arg`, `lane` elements on.
  template <class T>
  T* p(int arg, int lane = 0) {
    return static_cast<T*>(Pointer(arg, lane * static_cast<int>(sizeof(T))));
  }
  int step(int arg) const;
  PelIntL stepL(int arg) const { return step(arg); }
  // A by-value constant (element i of its array).
  template <class T>
  T v(int arg, int i = 0) {
    T value;
    std::memcpy(&value, Element(arg, i), sizeof(T));
    return value;
  }
  // A pointer the call makes itself (a spec, a work buffer): the sweep sets
  // it NULL in turn like the arguments' pointers; `id` tells several apart.
  template <class T>
  T* own(int id, T* pointer) {
    return Take(kOwnSlot + id) ? nullptr : pointer;
  }
  // The pointer of argument `arg` for the call's own use, never set NULL (an
  // array the call copies results into).
  template <class T>
  T* unswept(int arg) {
    return reinterpret_cast<T*>((*images)[arg].first());
  }
  static constexpr int kOwnSlot = 1000;
  // An array of plane pointers for the given arguments (itself a pointer the
  // sweep sets to NULL).
  template <class T>
  T* const* planes(std::initializer_list<int> args) {
    return reinterpret_cast<T* const*>(Planes(args));
  }

  // Runner side.
  struct Slot {
    int arg;        // the argument, or -1 - first argument for a plane array
    bool operator==(const Slot& o) const { return arg == o.arg; }
  };
  std::vector<AnyImage>* images = nullptr;
  std::vector<Arg>* args = nullptr;
  int nulled = -1000000;       // the slot that reads NULL
  std::vector<int> badSteps;   // per argument: 0 normal, else the step to pass
  std::vector<int> slotsSeen;  // every pointer slot the call asked for
  std::vector<std::vector<void*>> planeArrays;

 private:
  void* Pointer(int arg, int byteOffset);
  const void* Element(int arg, int i);
  void* const* Planes(std::initializer_list<int> args);
  bool Take(int slot);
};

// What a model sees: the images before the call (in) and the expected images
// after it (out, which start as copies of the images before the call).
class Model {
 public:
  PeliSize roi{};
  template <class T>
  View<T> in(int arg) {
    return View<T>(AnyView(&(*before)[arg], (*args)[arg].type, (*args)[arg].channels));
  }
  template <class T>
  View<T> out(int arg) {
    return View<T>(AnyView(&(*after)[arg], (*args)[arg].type, (*args)[arg].channels));
  }

  // Where the export saw element (x, y, c) of argument `arg`, for results
  // that depend on addresses (alignment).
  uintptr_t address(int arg, int x, int y, int c = 0) const {
    return reinterpret_cast<uintptr_t>((*called)[arg].bytesAt(x, y, c));
  }

  std::vector<AnyImage>* before = nullptr;
  std::vector<AnyImage>* after = nullptr;
  std::vector<Arg>* args = nullptr;
  std::vector<AnyImage>* called = nullptr;
};

// ---- Rows ---------------------------------------------------------------------

struct Row {
  std::string name;     // the export
  std::string variant;  // tells apart several rows of one export (constants, modes)
  std::vector<Arg> args;
  std::function<PelStatus(Call&)> call;
  // Writes the expected outputs and returns the expected status.
  std::function<PelStatus(Model&)> model;
  // The checks the export makes, in its order. Steps are swept only when
  // present (and then only for arguments whose StepRule is not None), bad
  // sizes only when Sizes is (set-up functions without a ROI leave it out).
  std::vector<Check> order{Check::Pointers, Check::Sizes};
  // Not Ok: a bad-parameter row, which must fail with this status.
  PelStatus expect = pelStatusOk;
  // Shapes to run on (the ROI of the call); empty: AwkwardLayouts(channels of
  // the first image argument).
  std::vector<Layout> shapes{};
  // The shape of the bad-argument sweep; width 0: 9x4.
  Layout sweepShape{0, 0};
  // Seeds the random contents; rows of one export may differ in it.
  uint32_t seed = 1;
  // What a step below its StepRule returns (some exports call it a size error).
  PelStatus badStepStatus = pelStatusBadStep;
};

// Runs one row on one shape under the current CPU level; gtest failures name
// the row, the shape and the first differing byte.
void RunRow(const Row& row, const Layout& shape, uint32_t seed);
// The same with a layout of its own for every argument.
void RunRowOn(const Row& row, const std::vector<Layout>& layouts, PeliSize roi, uint32_t seed);
// Every shape of the row under every CPU level.
void RunRowOnShapes(const Row& row);
// The bad-argument sweep.
void SweepRow(const Row& row);

// Families register their tables so that a test can tell which exports have
// no row.
struct Family {
  const char* name;
  std::vector<Row> (*rows)();
};
std::vector<Family>& Families();
bool RegisterFamily(const char* name, std::vector<Row> (*rows)());
// A registered row, for the hand-written tests of what a table cannot say.
Row FindRow(const std::string& name, const std::string& variant = "");

class RowTest : public ::testing::TestWithParam<Row> {};
// gtest names a failing row by its export (and variant), not its bytes.
void PrintTo(const Row& row, std::ostream* os);
std::string RowTestName(const ::testing::TestParamInfo<Row>& info);

// ---- Helpers for models --------------------------------------------------------

// f(x, y) for every pixel of a size.
template <class F>
void ForEachPixel(PeliSize s, F&& f) {
  for (int y = 0; y < s.height; ++y)
    for (int x = 0; x < s.width; ++x) f(x, y);
}

// Fills: random bits; finite floats in [lo, hi]; a mix of special values.
Fill FillBits();
Fill FillRange(double lo, double hi);

}  // namespace peltest

#define PEL_NAMED(fn) #fn, fn

#define PEL_ROWS(family, rowsFunction)                                                          \
  namespace peltest {                                                                            \
  INSTANTIATE_TEST_SUITE_P(family, RowTest, ::testing::ValuesIn(rowsFunction()), RowTestName);   \
  }                                                                                              \
  [[maybe_unused]] static const bool pel_rows_registered_##family =                              \
      ::peltest::RegisterFamily(#family, &rowsFunction);
