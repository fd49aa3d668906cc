#include "text/iconv_conversion.h"

#include <iconv.h>

#include <array>
#include <string_view>

#include "text/ascii.h"

namespace qk::text {
namespace {

class Converter {
 public:
  Converter(const char* to, const char* from)
      : descriptor_(iconv_open(to, from)) {}
  ~Converter() {
    if (is_open()) iconv_close(descriptor_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool is_open() const {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the way iconv_open fails
    return descriptor_ != reinterpret_cast<iconv_t>(-1);
  }
  iconv_t get() const { return descriptor_; }

 private:
  iconv_t descriptor_;
};

// Converts all of `input` in one call; returns whether that succeeded. `size`
// is the capacity of `output`, and becomes the number of bytes written.
bool convert_bytes(const Converter& converter, std::string_view input,
                   char* output, std::size_t& size, Ending ending) {
  // iconv does not write to its input; its parameter type predates const.
  char* source = const_cast<char*>(input.data());
  std::size_t source_size = input.size();
  std::size_t left = size;
  const bool is_whole = iconv(converter.get(), &source, &source_size, &output,
                              &left) != static_cast<std::size_t>(-1);
  if (ending == Ending::kFlushed) {
    iconv(converter.get(), nullptr, nullptr, &output, &left);
  }
  size -= left;
  return is_whole;
}

}  // namespace

template <typename In, typename Out>
bool convert(const char* to, const char* from, const In* input,
             std::size_t length, std::size_t capacity,
             std::basic_string<Out>& output, Ending ending) {
  const Converter converter(to, from);
  if (!converter.is_open()) {
    output.clear();
    return false;
  }
  // Short text needs no memory but the output's own, which the input may be in.
  constexpr std::size_t kShort = 2048;
  std::array<Out, kShort> few;
  std::basic_string<Out> many(capacity > kShort ? capacity : 0, Out());
  Out* const buffer = capacity > kShort ? many.data() : few.data();
  std::size_t size = capacity * sizeof(Out);
  const bool is_whole = convert_bytes(
      converter, {reinterpret_cast<const char*>(input), length * sizeof(In)},
      reinterpret_cast<char*>(buffer), size, ending);
  output.assign(
      until_zero(std::basic_string_view<Out>(buffer, size / sizeof(Out))));
  return is_whole;
}

template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::string&, Ending);
template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::wstring&, Ending);
template bool convert(const char*, const char*, const wchar_t*, std::size_t,
                      std::size_t, std::string&, Ending);

}  // namespace qk::text
