// Text copied to a buffer of exactly its size, so that a sanitizer sees one
// unit read too far. Without one, digits stand there that would count.
#ifndef KORVANE_TEST_UNIT_EXACT_COPY_H_
#define KORVANE_TEST_UNIT_EXACT_COPY_H_

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

template <typename Unit>
class ExactCopy {
 public:
  explicit ExactCopy(std::basic_string_view<Unit> text)
      : units_(new Unit[text.size() + kBehind]), size_(text.size()) {
    Unit* const end = std::copy(text.begin(), text.end(), units_.get());
    std::fill_n(end, kBehind, Unit('A'));
  }
  const Unit* data() const { return units_.get(); }
  std::size_t size() const { return size_; }

 private:
#ifdef KORVANE_SANITIZED
  static constexpr std::size_t kBehind = 0;
#else
  static constexpr std::size_t kBehind = 8;
#endif
  std::unique_ptr<Unit[]> units_;
  std::size_t size_;
};

ExactCopy(std::string_view)->ExactCopy<char>;
ExactCopy(std::wstring_view)->ExactCopy<wchar_t>;

#endif  // KORVANE_TEST_UNIT_EXACT_COPY_H_
