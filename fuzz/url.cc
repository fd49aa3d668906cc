// URLs: the C functions equal the class, and what is printed reads back.
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>

#include <memory>

#include "fuzz.h"

void check(Bytes& input) {
  const unsigned code_page = take_code_page(input);
  const Text text = widen(input);
  url_object url;
  const bool is_url = url_object::parse_url(text, code_page, url);
  const Text printed = url.to_string();
  const ExactCopy copy(text);
  const auto info = std::make_unique<url_info_u>();
  const long code =
      parse_url_u(copy.data(), copy.size(), code_page, info.get());
  require(is_url == (code != URL_E_PARSE), "the C function's result");
  Text out(printed.size(), L'#');
  std::size_t size = out.size();
  require(code != 0 || (url_info_to_str_u(out.data(), &size, info.get()) == 0 &&
                        out == printed),
          "the C function prints the same");
  // "http://:80/" is printed without an authority, which is no URL, and an
  // escape is decoded once more.
  if (!is_url || url.port == 0 || printed[url.schema.size()] == L'/') return;
  if ((url.user + url.password).find(L'%') != Text::npos) return;
  url_object again;
  require(url_object::parse_url(printed, code_page, again) &&
              again.to_string() == printed,
          "reads back");
}
