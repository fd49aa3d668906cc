// URLs: the C functions equal the class, and what is printed reads back.
#include <korvane/url_object.h>

#include <korvane/korvane_links.h>
#include "fuzz.h"

static long result_of(bool is_url, const url_object& url) {
  if (!is_url) return URL_E_PARSE;
  if (url.schema_type() == SCHEMA_UNKNOWN) return URL_E_UNSUPPORTED;
  for (const Text* field : {&url.schema, &url.user, &url.password, &url.host}) {
    if (field->size() > URL_FIELD_CAPACITY) return URL_E_BUFFER;
  }
  return url.path.size() > URL_PATH_CAPACITY ? URL_E_BUFFER : 0;
}

static void check_record(const url_info_u& info, const Text& want) {
  std::size_t size = want.size();
  Text out(size, L'#');
  require(url_info_to_str_u(out.data(), &size, &info) == 0, "prints");
  require(out == want && size == want.size(), "what is printed");
  if (want.empty()) return;
  --size;
  require(url_info_to_str_u(out.data(), &size, &info) == URL_E_BUFFER,
          "a URL does not fit in less");
}

void check(Bytes& input) {
  const unsigned code_page = choose(input, {0U, 65001U, 936U, 1252U, ~0U});
  const Text text = widen(input);
  url_object url;
  const bool is_url = url_object::parse_url(text, code_page, url);
  const Text printed = url.to_string();
  const ExactCopy<wchar_t> copy(text);
  const auto info = std::make_unique<url_info_u>();
  const long code =
      parse_url_u(copy.data(), copy.size(), code_page, info.get());
  require(code == result_of(is_url, url), "the C function's result");
  if (code == 0) check_record(*info, printed);
  require(!is_url || printed.empty() == (url.port == 0), "port 0 alone");
  // "http://:80/" is printed without an authority, which is no URL, and an
  // escape is decoded once more.
  if (!is_url || url.port == 0 || printed[url.schema.size()] == L'/') return;
  if ((url.user + url.password).find(L'%') != Text::npos) return;
  url_object again;
  require(url_object::parse_url(printed, code_page, again) &&
              again.to_string() == printed,
          "reads back");
}
