// Text copied to a buffer of exactly its size, so that a sanitizer sees one
// code unit read too far. Without one, digits follow that would count.
#ifndef KORVANE_TEST_UNIT_EXACT_COPY_H_
#define KORVANE_TEST_UNIT_EXACT_COPY_H_

#include <string>
#include <vector>

using Bytes = std::string;
using Text = std::wstring;

template <typename Unit>
class ExactCopy {
 public:
  explicit ExactCopy(const std::basic_string<Unit>& text) : size_(text.size()) {
    units_.reserve(1);  // no null pointer
    units_.assign(text.begin(), text.end());
#ifndef KORVANE_SANITIZED
    units_.resize(size_ + 8, Unit('A'));
#endif
  }
  const Unit* data() const { return units_.data(); }
  unsigned size() const { return static_cast<unsigned>(size_); }

 private:
  std::vector<Unit> units_;
  std::size_t size_;
};

#endif  // KORVANE_TEST_UNIT_EXACT_COPY_H_
