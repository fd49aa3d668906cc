#include <korvane/format_utility.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "rows.h"

namespace {

using Narrow = qk::text::format_utility_t<char>;
using Wide = qk::text::format_utility_t<wchar_t>;

TEST(FormatUtility, ReadsNumbersLikeTheScan) {
  check<std::wstring>("integers", [](const std::wstring& text) {
    const std::string narrow = bytes(text);
    const char* const n = narrow.c_str();
    const wchar_t* const w = text.c_str();
    return std::tuple(agreed(Narrow::str_to_uint32(n), Wide::str_to_uint32(w)),
                      Narrow::str_to_sint32(n), Wide::str_to_sint32(w),
                      agreed(Narrow::str_to_uint64(n), Wide::str_to_uint64(w)),
                      Narrow::str_to_sint64(n), Wide::str_to_sint64(w));
  });
  check<std::wstring>("floating point", [](const std::wstring& text) {
    const std::string narrow = bytes(text);
    const double value = agreed(Narrow::str_to_float64(narrow.c_str()),
                                Wide::str_to_float64(text.c_str()));
    const float rounded = agreed(Narrow::str_to_float32(narrow.c_str()),
                                 Wide::str_to_float32(text.c_str()));
    return agreed(std::to_wstring(value), std::to_wstring(rounded));
  });
}

TEST(FormatUtility, TellsTrueAndOneFromEverythingElse) {
  check<std::wstring>("bool", [](const std::wstring& text) {
    return agreed(Narrow::str_to_bool(bytes(text).c_str()),
                  Wide::str_to_bool(text.c_str()));
  });
}

TEST(FormatUtility, ShowsByteCountsInTheUnitTheyExceed) {
  check<double>("kilo", [](double count) {
    return agreed(units(Narrow::kilo_format(count)), Wide::kilo_format(count));
  });
}

}  // namespace
