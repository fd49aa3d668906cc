// Text copied to a buffer of exactly its size, so that a sanitizer sees one
// unit read too far.
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
      : units_(new Unit[text.size()]), size_(text.size()) {
    std::copy(text.begin(), text.end(), units_.get());
  }
  const Unit* data() const { return units_.get(); }
  std::size_t size() const { return size_; }

 private:
  std::unique_ptr<Unit[]> units_;
  std::size_t size_;
};

ExactCopy(std::string_view)->ExactCopy<char>;
ExactCopy(std::wstring_view)->ExactCopy<wchar_t>;

#endif  // KORVANE_TEST_UNIT_EXACT_COPY_H_
