// Text copied to a buffer of exactly its size, so that a sanitizer sees one
// code unit read too far.
#ifndef KORVANE_TEST_UNIT_EXACT_COPY_H_
#define KORVANE_TEST_UNIT_EXACT_COPY_H_

#include <memory>
#include <string>

using Bytes = std::string;
using Text = std::wstring;

template <typename Unit>
class ExactCopy {
 public:
  explicit ExactCopy(const std::basic_string<Unit>& text)
      : units_(new Unit[text.size()]), size_(unsigned(text.size())) {
    text.copy(units_.get(), text.size());
  }
  const Unit* data() const { return units_.get(); }
  unsigned size() const { return size_; }

 private:
  std::unique_ptr<Unit[]> units_;
  unsigned size_;
};

#endif  // KORVANE_TEST_UNIT_EXACT_COPY_H_
