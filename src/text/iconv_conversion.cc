#include "text/iconv_conversion.h"

#include <iconv.h>

#include <array>
#include <string_view>

namespace qk::text {
namespace {

constexpr auto kFailed = static_cast<std::size_t>(-1);

class Converter {
 public:
  Converter(const char* to, const char* from)
      : descriptor_(iconv_open(to, from)) {}
  ~Converter() {
    if (is_open()) iconv_close(descriptor_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  struct Result {
    bool is_whole;     // whether it took the whole input
    std::size_t size;  // how many bytes it wrote
  };

  // Converts in one call.
  Result run(const char* input, std::size_t input_size, char* output,
             std::size_t output_size, Ending ending) const {
    if (!is_open()) return {false, 0};
    // iconv does not write to its input; its parameter type predates const.
    char* source = const_cast<char*>(input);
    std::size_t left = output_size;
    const bool is_whole =
        iconv(descriptor_, &source, &input_size, &output, &left) != kFailed;
    if (ending == Ending::kFlushed) {
      iconv(descriptor_, nullptr, nullptr, &output, &left);
    }
    return {is_whole, output_size - left};
  }

 private:
  bool is_open() const {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the way iconv_open fails
    return descriptor_ != reinterpret_cast<iconv_t>(-1);
  }

  iconv_t descriptor_;
};

}  // namespace

template <typename In, typename Out>
bool convert(const char* to, const char* from, const In* input,
             std::size_t length, std::size_t room,
             std::basic_string<Out>& output, Ending ending) {
  // Short texts need no memory but the output's own. The input may lie in that.
  constexpr std::size_t kShort = 2048;
  std::array<Out, kShort> few;
  std::basic_string<Out> many(room > kShort ? room : 0, Out());
  Out* const buffer = room > kShort ? many.data() : few.data();
  const auto [is_whole, size] = Converter(to, from).run(
      reinterpret_cast<const char*>(input), length * sizeof(In),
      reinterpret_cast<char*>(buffer), room * sizeof(Out), ending);
  // The result is a text up to its first zero.
  const std::basic_string_view<Out> text(buffer, size / sizeof(Out));
  output.assign(text.substr(0, text.find(Out())));
  return is_whole;
}

template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::string&, Ending);
template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::wstring&, Ending);
template bool convert(const char*, const char*, const wchar_t*, std::size_t,
                      std::size_t, std::string&, Ending);

}  // namespace qk::text
