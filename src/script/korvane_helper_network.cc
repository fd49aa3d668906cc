// Whether a host can be reached, as far as the name resolver knows.
#include <netdb.h>

#include <string_view>

#include "script/korvane_helper.h"

namespace {

constexpr std::size_t kUrlCapacity = 8182;

// Removes one scheme from the start, case-sensitively. A scheme that stands
// anywhere else stops the search for the next one and stays.
std::string_view without_scheme(std::string_view url) {
  for (const std::string_view scheme : {"http://", "https://", "ftp://"}) {
    const std::size_t position = url.find(scheme);
    if (position == 0) return url.substr(scheme.size());
    if (position != std::string_view::npos) return url;
  }
  return url;
}

// Cuts the path off: at the first slash, or where there is none, at the first
// backslash.
std::string_view without_path(std::string_view url) {
  const std::size_t slash = url.find('/');
  if (slash != std::string_view::npos) return url.substr(0, slash);
  return url.substr(0, url.find('\\'));
}

}  // namespace

void KorvaneHelper::IsPingHostValid(const Arguments& arguments) {
  answer_number(arguments, 0);
  const Utf8Argument<kUrlCapacity> url(arguments, 0);
  const std::string host(without_path(without_scheme(url.c_str())));
  if (gethostbyname(host.c_str()) != nullptr) answer_number(arguments, 1);
}

void KorvaneHelper::GetCurInternetState(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::AsyncGetNetAdapterInfo(const Arguments& arguments) {
  answer_integer(arguments, 0);
}

void KorvaneHelper::StartListenLocalNet(const Arguments&) {}
