#include <netdb.h>

#include <string_view>

#include "script/korvane_helper.h"

namespace {

constexpr std::size_t kUrlCapacity = 8182;

// Removes one scheme from the start, case-sensitively. Quirk: a scheme found
// anywhere else stops the search for the next one and is not removed.
std::string_view without_scheme(std::string_view url) {
  for (const std::string_view scheme : {"http://", "https://", "ftp://"}) {
    const std::size_t position = url.find(scheme);
    if (position == 0) return url.substr(scheme.size());
    if (position != std::string_view::npos) return url;
  }
  return url;
}

// Cuts the path off: at the first slash, or without one, at the first
// backslash.
std::string_view without_path(std::string_view url) {
  const std::size_t slash = url.find('/');
  if (slash != std::string_view::npos) return url.substr(0, slash);
  return url.substr(0, url.find('\\'));
}

}  // namespace

void KorvaneHelper::IsPingHostValid(const Call& call) {
  set_result(call, 0);
  const Utf8Argument<kUrlCapacity> url(call, 0);
  const std::string host(without_path(without_scheme(url.c_str())));
  if (gethostbyname(host.c_str()) != nullptr) set_result(call, 1);
}
