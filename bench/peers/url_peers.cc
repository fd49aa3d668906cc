#include <curl/curl.h>
#include <glib.h>
#include <http_parser.h>
#include <uriparser/Uri.h>

#include "contest.h"
#include "peers.h"

bool peers::http_parser_offsets(const std::string& url) {
  http_parser_url parts;
  http_parser_url_init(&parts);
  const int fault = http_parser_parse_url(url.data(), url.size(), 0, &parts);
  bench::keep(parts);
  return fault == 0;
}

bool peers::uriparser_ranges(const std::wstring& url) {
  UriUriW parts;
  const wchar_t* fault = nullptr;
  if (uriParseSingleUriExW(&parts, url.data(), url.data() + url.size(),
                           &fault) != URI_SUCCESS) {
    return false;
  }
  bench::keep(parts);
  uriFreeUriMembersW(&parts);
  return true;
}

namespace {

struct CurlPart {
  CURLUPart part;
  unsigned flags;
};

constexpr CurlPart kCurlParts[] = {
    {CURLUPART_SCHEME, 0},
    {CURLUPART_USER, CURLU_URLDECODE},
    {CURLUPART_PASSWORD, CURLU_URLDECODE},
    {CURLUPART_HOST, 0},
    {CURLUPART_PORT, CURLU_DEFAULT_PORT},
    {CURLUPART_PATH, 0},
    {CURLUPART_QUERY, 0},
};

}  // namespace

bool peers::curl_parts(const std::string& url) {
  static CURLU* const handle = curl_url();
  if (curl_url_set(handle, CURLUPART_URL, url.c_str(), 0) != CURLUE_OK) {
    return false;
  }
  for (const CurlPart& wanted : kCurlParts) {
    char* text = nullptr;
    if (curl_url_get(handle, wanted.part, &text, wanted.flags) == CURLUE_OK) {
      curl_free(text);
    }
  }
  return true;
}

bool peers::glib_parts(const std::string& url) {
  constexpr auto kFlags = static_cast<GUriFlags>(
      G_URI_FLAGS_HAS_PASSWORD | G_URI_FLAGS_ENCODED_PATH |
      G_URI_FLAGS_ENCODED_QUERY | G_URI_FLAGS_ENCODED_FRAGMENT);
  char* texts[6] = {};
  int port = 0;
  const gboolean taken = g_uri_split_with_user(
      url.c_str(), kFlags, &texts[0], &texts[1], &texts[2], nullptr, &texts[3],
      &port, &texts[4], &texts[5], nullptr, nullptr);
  for (char* text : texts) g_free(text);
  return taken != 0;
}

bool peers::curl_unescape(const std::string& text) {
  int size = 0;
  char* decoded = curl_easy_unescape(nullptr, text.data(),
                                     static_cast<int>(text.size()), &size);
  curl_free(decoded);
  return decoded != nullptr;
}

bool peers::curl_file_name(const std::string& url) {
  const std::size_t end = std::min(url.find('?'), url.size());
  const std::size_t begin = url.rfind('/', end) + 1;
  int size = 0;
  char* decoded = curl_easy_unescape(nullptr, url.data() + begin,
                                     static_cast<int>(end - begin), &size);
  curl_free(decoded);
  return decoded != nullptr;
}
