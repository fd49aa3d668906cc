#include "text/iconv_conversion.h"

#include <iconv.h>

#include <algorithm>
#include <utility>

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

  // Converts in one call; true when it took the whole input.
  bool run(const char* input, std::size_t input_size, char* output,
           std::size_t output_size, Ending ending) const {
    if (!is_open()) return false;
    // iconv does not write to its input; its parameter type predates const.
    char* source = const_cast<char*>(input);
    const bool whole = iconv(descriptor_, &source, &input_size, &output,
                             &output_size) != kFailed;
    if (ending == Ending::kFlushed) {
      iconv(descriptor_, nullptr, nullptr, &output, &output_size);
    }
    return whole;
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
  std::basic_string<Out> buffer(room, Out());
  const bool whole = Converter(to, from).run(
      reinterpret_cast<const char*>(input), length * sizeof(In),
      reinterpret_cast<char*>(buffer.data()), room * sizeof(Out), ending);
  // A result that fills its room has no terminator: the room bounds it.
  buffer.resize(std::min(buffer.find(Out()), room));
  output = std::move(buffer);
  return whole;
}

template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::string&, Ending);
template bool convert(const char*, const char*, const char*, std::size_t,
                      std::size_t, std::wstring&, Ending);
template bool convert(const char*, const char*, const wchar_t*, std::size_t,
                      std::size_t, std::string&, Ending);

}  // namespace qk::text
