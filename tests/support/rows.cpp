#include "support/rows.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <sstream>

#include "support/cpu_levels.h"

namespace peltest {

// ---- Call --------------------------------------------------------------------

bool Call::Take(int slot) {
  if (std::find(slotsSeen.begin(), slotsSeen.end(), slot) == slotsSeen.end()) {
    slotsSeen.push_back(slot);
  }
  return slot == nulled;
}

void* Call::Pointer(int arg, int byteOffset) {
  if (Take(arg)) return nullptr;
  return (*images)[arg].first() + byteOffset;
}

const void* Call::Element(int arg, int i) { return (*images)[arg].bytesAt(i, 0, 0); }

int Call::step(int arg) const {
  if (!badSteps.empty() && badSteps[arg] != 0) return badSteps[arg] == INT_MIN ? 0 : badSteps[arg];
  return (*images)[arg].step();
}

void* const* Call::Planes(std::initializer_list<int> planeArgs) {
  if (Take(-1 - *planeArgs.begin())) return nullptr;
  std::vector<void*> planes;
  for (int a : planeArgs) planes.push_back(Pointer(a, 0));
  planeArrays.push_back(std::move(planes));
  return planeArrays.back().data();
}

// ---- Fills ---------------------------------------------------------------------

Fill FillBits() {
  return [](AnyView& v, std::mt19937& rng) {
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c) {
          if (!v.image().Has(x, y, c)) continue;
          uint8_t* b = v.image().bytesAt(x, y, c);
          for (int i = 0; i < v.type().bytes; ++i) b[i] = static_cast<uint8_t>(rng());
        }
  };
}

namespace {

template <class T>
void Put(uint8_t* b, T value) {
  std::memcpy(b, &value, sizeof value);
}

void PutRandom(uint8_t* b, ElemType t, double lo, double hi, std::mt19937& rng) {
  if (t.kind == 'f' || t.kind == 'c') {
    const int parts = t.kind == 'c' ? 2 : 1;
    const int partBytes = t.bytes / parts;
    for (int k = 0; k < parts; ++k) {
      const double v = std::uniform_real_distribution<double>(lo, hi)(rng);
      if (partBytes == 4) Put(b + 4 * k, static_cast<float>(v));
      else Put(b + 8 * k, v);
    }
    return;
  }
  const auto v = static_cast<int64_t>(std::uniform_real_distribution<double>(lo, hi + 1)(rng));
  const int64_t clamped = std::min<int64_t>(std::max<int64_t>(v, static_cast<int64_t>(lo)),
                                            static_cast<int64_t>(hi));
  std::memcpy(b, &clamped, t.bytes);  // little-endian: the low bytes
}

}  // namespace

Fill FillRange(double lo, double hi) {
  return [lo, hi](AnyView& v, std::mt19937& rng) {
    for (int y = 0; y < v.height(); ++y)
      for (int x = 0; x < v.width(); ++x)
        for (int c = 0; c < v.channels(); ++c)
          if (v.image().Has(x, y, c)) PutRandom(v.image().bytesAt(x, y, c), v.type(), lo, hi, rng);
  };
}

// ---- Images of a row ---------------------------------------------------------------

namespace {

bool Checks(const Row& row, Check c) {
  return std::find(row.order.begin(), row.order.end(), c) != row.order.end();
}
bool ChecksSteps(const Row& row) { return Checks(row, Check::Steps); }

int FirstImageChannels(const Row& row) {
  for (const Arg& a : row.args)
    if (a.count == 0) return a.channels;
  return 1;
}

// The layout of every argument for one shape of the call: the ROI comes from
// the shape, each image gets its own padding, offset and row direction
// (planes of one group share their padding, so that they share the step).
std::vector<Layout> LayoutsFor(const Row& row, const Layout& shape) {
  const PeliSize roi{shape.width, shape.height};
  const bool positiveSteps = ChecksSteps(row);
  std::vector<Layout> out;
  for (size_t k = 0; k < row.args.size(); ++k) {
    const Arg& a = row.args[k];
    if (a.count > 0) {
      out.push_back(Layout{a.count, 1, 1, 0, 0, false, shape.fence});
      continue;
    }
    const PeliSize s = a.size ? a.size(roi) : roi;
    const int e = a.type.bytes;
    // Padding and offset are whole elements (some exports drop the part of
    // a step that is not), odd numbers of them for the 8-bit images.
    const int kk = static_cast<int>(k);
    Layout l{s.width, s.height, a.channels, (shape.padBytes / 8 + kk % 3 * 3) * e,
             (shape.offsetBytes / 4 + 5 * kk) % 12 * e, shape.bottomUp != (kk % 2 == 1)};
    int inGroup = 0;
    for (size_t j = 0; j < k && a.stepGroup >= 0; ++j) {
      if (row.args[j].stepGroup != a.stepGroup) continue;
      if (inGroup++ == 0) {
        l.padBytes = out[j].padBytes;
        l.bottomUp = out[j].bottomUp;
        l.offsetBytes = out[j].offsetBytes;
      }
    }
    l.offsetBytes += 4 * e * inGroup;
    if (positiveSteps && (a.step == StepRule::Positive || a.step == StepRule::RowBytes)) l.bottomUp = false;
    if (shape.fence != Fence::None) {
      l = Layout{s.width, s.height, a.channels, 0, 0, false, shape.fence};
      l.trimBytes = a.unusedTail * e;
    }
    if (shape.gapless) l = Layout{s.width, s.height, a.channels};
    out.push_back(l);
  }
  return out;
}

std::vector<AnyImage> MakeImages(const Row& row, const std::vector<Layout>& layouts, uint32_t seed) {
  std::vector<AnyImage> images;
  std::mt19937 rng(seed);
  for (size_t k = 0; k < row.args.size(); ++k) {
    const Arg& a = row.args[k];
    images.emplace_back(layouts[k], a.type.bytes);
    AnyView v(&images.back(), a.type, a.channels);
    if (a.use == Use::Out) {
      images.back().FillRandomBytes(rng());  // whatever was there before
    } else if (a.fill) {
      a.fill(v, rng);
    } else if (a.type.kind == 'f' || a.type.kind == 'c') {
      FillRange(-1e6, 1e6)(v, rng);
    } else {
      FillBits()(v, rng);
    }
  }
  return images;
}

std::string ArgName(const Row& row, size_t k) {
  static const char* const kUse[] = {"source", "destination", "in-place image"};
  std::ostringstream s;
  s << "argument " << k << " (" << (row.args[k].count > 0 ? "array" : kUse[int(row.args[k].use)])
    << ")";
  return s.str();
}

double FloatAt(const uint8_t* b, int bytes) {
  if (bytes == 4) {
    float f;
    std::memcpy(&f, b, 4);
    return f;
  }
  double d;
  std::memcpy(&d, b, 8);
  return d;
}

// The difference a tolerant argument allows: its tolerance times the largest
// magnitude in the expected image.
double Allowed(const Row& row, size_t k, const AnyImage& want) {
  const Arg& a = row.args[k];
  if (a.tolerance <= 0 || a.type.kind != 'f') return -1;
  double largest = 0;
  for (int y = 0; y < want.layout().height; ++y)
    for (int x = 0; x < want.layout().width; ++x)
      for (int c = 0; c < a.channels; ++c)
        if (want.Has(x, y, c)) largest = std::max(largest, std::fabs(FloatAt(want.bytesAt(x, y, c), a.type.bytes)));
  return a.tolerance * largest;
}

// Every byte of every buffer as expected (within an argument's tolerance
// inside the ROI); the first difference is described.
::testing::AssertionResult SameBytes(const Row& row, const std::vector<AnyImage>& got,
                                     const std::vector<AnyImage>& want) {
  for (size_t k = 0; k < got.size(); ++k) {
    const auto& g = got[k].bytes();
    const auto& w = want[k].bytes();
    const double allowed = Allowed(row, k, want[k]);
    bool inside = false, differs = false;
    size_t start = 0, index = 0;
    std::string where;
    for (size_t from = 0; !differs;) {
      const auto diff = std::mismatch(g.begin() + static_cast<ptrdiff_t>(from), g.end(),
                                      w.begin() + static_cast<ptrdiff_t>(from));
      if (diff.first == g.end()) break;
      index = static_cast<size_t>(diff.first - g.begin());
      where = got[k].Where(index, &inside, &start);
      differs = !inside || allowed < 0;
      if (differs) break;
      const int bytes = row.args[k].type.bytes;
      const double gv = FloatAt(g.data() + start, bytes), wv = FloatAt(w.data() + start, bytes);
      differs = !(std::fabs(gv - wv) <= allowed) && !(std::isnan(gv) && std::isnan(wv));
      from = start + static_cast<size_t>(bytes);
    }
    if (!differs) continue;
    auto failure = ::testing::AssertionFailure();
    failure << ArgName(row, k) << " differs at " << where << ": got ";
    if (inside) {
      const ElemType t = row.args[k].type;
      failure << ValueText(g.data() + start, t.bytes, t.kind) << ", want "
              << ValueText(w.data() + start, t.bytes, t.kind);
      if (allowed >= 0) failure << " within " << allowed;
    } else {
      failure << int(g[index]) << ", want " << int(w[index]) << " (written outside the ROI)";
    }
    return failure << " [" << got[k].layout().Describe() << "]";
  }
  return ::testing::AssertionSuccess();
}

}  // namespace

void RunRowOn(const Row& row, const std::vector<Layout>& layouts, PeliSize roi, uint32_t seed) {
  std::vector<Arg> args = row.args;
  std::vector<AnyImage> images = MakeImages(row, layouts, seed);
  std::vector<AnyImage> before = images;
  Call call;
  call.roi = roi;
  call.images = &images;
  call.args = &args;
  const PelStatus status = row.call(call);
  std::vector<AnyImage> want = before;
  PelStatus wantStatus = row.expect;
  if (row.expect == pelStatusOk) {
    Model model;
    model.roi = call.roi;
    model.before = &before;
    model.after = &want;
    model.args = &args;
    model.called = &images;
    wantStatus = row.model(model);
  } else {
    // A bad-parameter row fails at Param: results that an earlier check
    // zeroes are zeros, everything else is untouched.
    auto position = [&](Check c) { return std::find(row.order.begin(), row.order.end(), c) - row.order.begin(); };
    for (size_t k = 0; k < args.size(); ++k)
      if (args[k].zeroedAfter && args[k].count > 0 && position(Check::Param) > position(*args[k].zeroedAfter))
        std::memset(want[k].bytesAt(0, 0), 0, size_t(args[k].count) * args[k].type.bytes);
  }
  for (size_t k = 0; k < args.size(); ++k) {
    if (!args[k].scratch || status < 0) continue;
    const size_t bytes = size_t(args[k].count) * args[k].type.bytes;
    std::memcpy(want[k].bytesAt(0, 0), images[k].bytesAt(0, 0), bytes);
  }
  const std::string shape = std::to_string(roi.width) + "x" + std::to_string(roi.height);
  EXPECT_EQ(status, wantStatus) << "status of " << row.name << " " << row.variant << " on " << shape;
  EXPECT_TRUE(SameBytes(row, images, want)) << row.name << " " << row.variant << " on " << shape;
}

void RunRow(const Row& row, const Layout& shape, uint32_t seed) {
  RunRowOn(row, LayoutsFor(row, shape), PeliSize{shape.width, shape.height}, seed);
}

void RunRowOnShapes(const Row& row) {
  std::vector<Layout> shapes = row.shapes;
  if (shapes.empty()) {
    shapes = AwkwardLayouts(FirstImageChannels(row));
    for (const Layout& l : FencedLayouts(FirstImageChannels(row))) shapes.push_back(l);
  }
  ForEachCpuLevel([&] {
    uint32_t seed = row.seed * 7919u;
    for (const Layout& shape : shapes) {
      RunRow(row, shape, ++seed);
      if (::testing::Test::HasFailure()) return;  // the first failing shape tells enough
    }
  });
}

// ---- The bad-argument sweep ---------------------------------------------------------

namespace {

PelStatus StatusOf(Check c, const Row& row) {
  switch (c) {
    case Check::Pointers: return pelStatusNullPointer;
    case Check::Sizes: return pelStatusBadSize;
    case Check::Steps: return row.badStepStatus;
    case Check::LatePointers: return pelStatusNullPointer;
    case Check::Param: return row.expect;
    case Check::ZeroSizes: return pelStatusNoOperation;
  }
  return pelStatusOk;
}

}  // namespace

void SweepRow(const Row& row) {
  const Layout shape = row.sweepShape.width > 0 ? row.sweepShape : Layout{9, 4, FirstImageChannels(row), 8, 4, false};
  const std::vector<Layout> layouts = LayoutsFor(row, shape);
  std::vector<Arg> args = row.args;
  std::vector<AnyImage> images = MakeImages(row, layouts, row.seed);
  const std::vector<AnyImage> before = images;

  auto run = [&](int nulled, PeliSize roi, const std::vector<int>& badSteps, std::vector<int>* seen) {
    Call call;
    call.roi = roi;
    call.images = &images;
    call.args = &args;
    call.nulled = nulled;
    call.badSteps = badSteps;
    const PelStatus status = row.call(call);
    if (seen) *seen = call.slotsSeen;
    return status;
  };

  // The good call, on a copy, finds the pointer slots and must succeed (or
  // fail with the row's own status).
  std::vector<int> slots;
  {
    const PelStatus s = run(-1000000, shape.width > 0 ? PeliSize{shape.width, shape.height} : PeliSize{}, {}, &slots);
    if (row.expect != pelStatusOk) EXPECT_EQ(s, row.expect) << row.name;
    else EXPECT_GE(s, 0) << row.name << " on the sweep's shape";
    images = before;
  }

  const bool paramBad = row.expect != pelStatusOk;
  // The check that failed last, for results zeroed by the checks before it.
  Check failedAt = Check::Pointers;
  // Which check a NULL slot trips: plane arrays and most arguments are
  // pointers, latePointer arguments late pointers.
  auto late = [&](int slot) { return slot >= 0 && slot < int(args.size()) && args[slot].latePointer; };
  // A size fault is a zero (caught by ZeroSizes where the row has it) or a
  // negative dimension.
  const bool zeroIsWarning = Checks(row, Check::ZeroSizes);
  PeliSize faultySize{};
  auto expected = [&](bool ptr, bool size, bool step, bool latePtr = false) -> PelStatus {
    const bool zero = size && zeroIsWarning && (faultySize.width == 0 || faultySize.height == 0);
    for (Check c : row.order) {
      if ((c == Check::Pointers && ptr) || (c == Check::LatePointers && latePtr) ||
          (c == Check::Sizes && size && !zero) || (c == Check::ZeroSizes && zero) ||
          (c == Check::Steps && step) || (c == Check::Param && paramBad)) {
        failedAt = c;
        return StatusOf(c, row);
      }
    }
    ADD_FAILURE() << row.name << ": a broken argument that no check in the row's order catches";
    return pelStatusOk;
  };
  auto position = [&](Check c) { return std::find(row.order.begin(), row.order.end(), c) - row.order.begin(); };
  auto untouched = [&](const std::string& what) {
    for (size_t k = 0; k < images.size(); ++k) {
      const bool zeroed = args[k].zeroedAfter && position(failedAt) > position(*args[k].zeroedAfter);
      AnyImage want = before[k];
      if (zeroed) std::memset(want.bytesAt(0, 0), 0, size_t(args[k].count) * args[k].type.bytes);
      if (images[k].bytes() != want.bytes()) {
        ADD_FAILURE() << row.name << ", " << what << ": " << ArgName(row, k)
                      << (zeroed ? " was not zeroed by" : " was written by") << " a call that failed";
      }
      if (zeroed || images[k].bytes() != want.bytes()) images[k] = before[k];
    }
  };

  const PeliSize good{shape.width, shape.height};
  const PeliSize badSizes[] = {{0, good.height}, {good.width, 0}, {-1, good.height},
                               {good.width, -5}, {INT_MIN, INT_MIN}, {0, 0}};
  // Bad steps: for each checked argument (or step group), zero and negative,
  // and one byte short of the row where whole rows are required.
  std::vector<std::vector<int>> badStepSets;
  if (ChecksSteps(row)) {
    for (size_t k = 0; k < args.size(); ++k) {
      if (args[k].step == StepRule::None || args[k].count > 0) continue;
      const int rowBytes = images[k].layout().width * args[k].channels * args[k].type.bytes;
      std::vector<int> values{INT_MIN /* zero */};
      if (args[k].step != StepRule::NonZero) values.push_back(-images[k].step());
      if (args[k].step == StepRule::RowBytes) values.push_back(rowBytes - 1);
      for (int v : values) {
        if (v == 0) continue;
        std::vector<int> set(args.size(), 0);
        for (size_t j = 0; j < args.size(); ++j) {
          const bool together = j == k || (args[k].stepGroup >= 0 && args[j].stepGroup == args[k].stepGroup);
          if (together) set[j] = v;
        }
        badStepSets.push_back(set);
      }
    }
  }

  for (int slot : slots) {
    const std::string what = "pointer slot " + std::to_string(slot) + " NULL";
    const bool early = !late(slot);
    EXPECT_EQ(run(slot, good, {}, nullptr), expected(early, false, false, !early)) << row.name << ", " << what;
    untouched(what);
    faultySize = PeliSize{0, 0};
    if (Checks(row, Check::Sizes) || zeroIsWarning) {
      EXPECT_EQ(run(slot, PeliSize{0, 0}, {}, nullptr), expected(early, true, false, !early))
          << row.name << ", " << what << " with a 0x0 size";
      untouched(what + " with a 0x0 size");
    }
    for (const auto& steps : badStepSets) {
      EXPECT_EQ(run(slot, good, steps, nullptr), expected(early, false, true, !early))
          << row.name << ", " << what << " with a bad step";
      untouched(what + " with a bad step");
    }
  }
  for (const PeliSize& s : badSizes) {
    if (!Checks(row, Check::Sizes) && !zeroIsWarning) break;
    faultySize = s;
    const std::string what = "size " + std::to_string(s.width) + "x" + std::to_string(s.height);
    EXPECT_EQ(run(-1000000, s, {}, nullptr), expected(false, true, false)) << row.name << ", " << what;
    untouched(what);
    for (const auto& steps : badStepSets) {
      EXPECT_EQ(run(-1000000, s, steps, nullptr), expected(false, true, true))
          << row.name << ", " << what << " with a bad step";
      untouched(what + " with a bad step");
    }
  }
  for (const auto& steps : badStepSets) {
    EXPECT_EQ(run(-1000000, good, steps, nullptr), expected(false, false, true)) << row.name << ", a bad step";
    untouched("a bad step");
  }
}

// ---- Registration ---------------------------------------------------------------------

std::vector<Family>& Families() {
  static std::vector<Family> families;
  return families;
}

bool RegisterFamily(const char* name, std::vector<Row> (*rows)()) {
  Families().push_back({name, rows});
  return true;
}

Row FindRow(const std::string& name, const std::string& variant) {
  for (const Family& f : Families())
    for (Row& r : f.rows())
      if (r.name == name && r.variant == variant) return r;
  ADD_FAILURE() << "no row " << name << " " << variant;
  return Row{name, variant, {}, [](Call&) { return pelStatusOk; }, [](Model&) { return pelStatusOk; }};
}

void PrintTo(const Row& row, std::ostream* os) { *os << row.name << (row.variant.empty() ? "" : " " + row.variant); }

std::string RowTestName(const ::testing::TestParamInfo<Row>& info) {
  std::string name = info.param.name;
  if (!info.param.variant.empty()) name += "_" + info.param.variant;
  for (char& ch : name)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return name;
}

TEST_P(RowTest, MatchesModel) { RunRowOnShapes(GetParam()); }
TEST_P(RowTest, BadArguments) { SweepRow(GetParam()); }
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RowTest);

}  // namespace peltest
