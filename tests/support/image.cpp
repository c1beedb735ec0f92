#include "support/image.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>
#include <sstream>

namespace peltest {

std::string Layout::Describe() const {
  std::ostringstream s;
  s << width << "x" << height << " C" << channels << " pad" << padBytes << " off" << offsetBytes
    << (bottomUp ? " bottom-up" : "") << (gapless ? " gapless" : "")
    << (fence == Fence::AtEnd ? " fenced at the end" : fence == Fence::AtStart ? " fenced at the start" : "");
  return s.str();
}

namespace {

size_t PageBytes() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }
size_t Usable(size_t n) { return (n + PageBytes() - 1) / PageBytes() * PageBytes(); }

}  // namespace

uint8_t* GuardedAllocator::allocate(size_t n) {
  if (fence == Fence::None) {
    void* p = std::malloc(n ? n : 1);
    if (!p) throw std::bad_alloc();
    return static_cast<uint8_t*>(p);
  }
  const size_t page = PageBytes(), usable = Usable(n);
  void* m = mmap(nullptr, usable + 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (m == MAP_FAILED) throw std::bad_alloc();
  auto* base = static_cast<uint8_t*>(m);
  mprotect(base, page, PROT_NONE);
  mprotect(base + page + usable, page, PROT_NONE);
  return fence == Fence::AtStart ? base + page : base + page + usable - n;
}

void GuardedAllocator::deallocate(uint8_t* p, size_t n) {
  if (fence == Fence::None) return std::free(p);
  const size_t page = PageBytes(), usable = Usable(n);
  uint8_t* base = fence == Fence::AtStart ? p - page : p + n - usable - page;
  munmap(base, usable + 2 * page);
}

AnyImage::AnyImage(const Layout& l, int elemBytes)
    : layout_(l), elemBytes_(elemBytes), buffer_(GuardedAllocator(l.fence)) {
  rowBytes_ = static_cast<size_t>(l.width) * l.channels * elemBytes;
  pitch_ = rowBytes_ + l.padBytes;
  guard_ = l.fence == Fence::None ? kGuardBytes : 0;
  const size_t trim = l.fence == Fence::AtEnd ? static_cast<size_t>(l.trimBytes) : 0;
  buffer_.assign(guard_ + l.offsetBytes + pitch_ * l.height + guard_ - trim, kGuardByte);
}

uint8_t* AnyImage::bytesAt(int x, int y, int c) {
  uint8_t* row = buffer_.data() + guard_ + layout_.offsetBytes;
  const int memoryRow = layout_.bottomUp ? layout_.height - 1 - y : y;
  row += pitch_ * static_cast<size_t>(memoryRow);
  return row + (static_cast<size_t>(x) * layout_.channels + c) * elemBytes_;
}

void AnyImage::FillRandomBytes(uint32_t seed) {
  std::mt19937 rng(seed);
  for (int y = 0; y < layout_.height; ++y) {
    uint8_t* row = bytesAt(0, y);
    const size_t end = static_cast<size_t>(row - buffer_.data()) + rowBytes_;
    const size_t n = end > buffer_.size() ? rowBytes_ - (end - buffer_.size()) : rowBytes_;
    for (size_t i = 0; i < n; ++i) row[i] = static_cast<uint8_t>(rng());
  }
}

std::string AnyImage::Where(size_t index, bool* inside, size_t* elementStart) const {
  if (inside) *inside = false;
  const size_t first = guard_ + layout_.offsetBytes;
  std::ostringstream s;
  if (index < guard_) {
    s << "guard byte " << index << " before the buffer";
    return s.str();
  }
  if (index < first) {
    s << "offset byte " << index - guard_ << " before the first row";
    return s.str();
  }
  const size_t rel = index - first;
  const size_t memoryRow = rel / pitch_;
  if (memoryRow >= static_cast<size_t>(layout_.height)) {
    s << "guard byte " << rel - pitch_ * layout_.height << " after the last row";
    return s.str();
  }
  const size_t col = rel % pitch_;
  const int y = layout_.bottomUp ? layout_.height - 1 - static_cast<int>(memoryRow)
                                 : static_cast<int>(memoryRow);
  if (col >= rowBytes_) {
    s << "padding byte " << col - rowBytes_ << " after row y=" << y;
    return s.str();
  }
  const size_t element = col / elemBytes_;
  if (inside) *inside = true;
  if (elementStart) *elementStart = index - col % elemBytes_;
  s << "x=" << element / layout_.channels << " y=" << y << " c=" << element % layout_.channels;
  return s.str();
}

std::string ValueText(const uint8_t* bytes, int elemBytes, char kind) {
  char buf[64];
  if (kind == 'f' && elemBytes == 4) {
    float f;
    std::memcpy(&f, bytes, 4);
    uint32_t u;
    std::memcpy(&u, bytes, 4);
    std::snprintf(buf, sizeof buf, "%.9g (0x%08x)", f, u);
  } else if (kind == 'f' && elemBytes == 8) {
    double f;
    std::memcpy(&f, bytes, 8);
    uint64_t u;
    std::memcpy(&u, bytes, 8);
    std::snprintf(buf, sizeof buf, "%.17g (0x%016llx)", f, static_cast<unsigned long long>(u));
  } else {
    uint64_t u = 0;
    std::memcpy(&u, bytes, elemBytes > 8 ? 8 : elemBytes);
    if (kind == 's') {
      const int shift = 64 - 8 * elemBytes;
      std::snprintf(buf, sizeof buf, "%lld",
                    static_cast<long long>(static_cast<int64_t>(u << shift) >> shift));
    } else {
      std::snprintf(buf, sizeof buf, "%llu (0x%llx)", static_cast<unsigned long long>(u),
                    static_cast<unsigned long long>(u));
    }
  }
  return buf;
}

std::vector<Layout> AwkwardLayouts(int channels) {
  std::vector<Layout> out;
  const int widths[] = {1, 2, 7, 15, 16, 17, 31, 33, 63, 64, 65, 129, 1003};
  int k = 0;
  for (int w : widths) {
    for (int h : {1, 3}) {
      Layout l;
      l.width = w;
      l.height = h;
      l.channels = channels;
      l.padBytes = (k % 3) * 8;  // 0, 8 or 16 bytes of padding
      l.offsetBytes = (k % 4) * 4 + (k % 2 ? 4 : 0);
      l.bottomUp = (k % 5) == 4;
      out.push_back(l);
      ++k;
    }
  }
  out.push_back(Layout{1, 37, channels, 4, 0, false});  // one column
  for (int w : {5, 64, 333}) {
    Layout l{w, 7, channels};
    l.gapless = true;
    out.push_back(l);
  }
  return out;
}

std::vector<Layout> FencedLayouts(int channels) {
  std::vector<Layout> out;
  for (int w : {1, 7, 33, 65, 1001})
    for (int h : {1, 3}) out.push_back(Layout{w, h, channels, 0, 0, false, w % 2 ? Fence::AtEnd : Fence::AtStart});
  out.push_back(Layout{64, 2, channels, 0, 0, false, Fence::AtEnd});
  return out;
}

}  // namespace peltest
