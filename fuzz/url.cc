// A URL taken apart: by the class, by the C function and by a slow reader; and
// printed and taken apart again.
#include <korvane/url_object.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include <korvane/format_utility.h>
#include <korvane/korvane_links.h>
#include "fuzz.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
constexpr std::size_t kNowhere = std::wstring::npos;

// Text before and behind a mark; `found` is where it stands.
std::wstring before(const std::wstring& text, std::size_t found) {
  return text.substr(0, found);
}
std::wstring behind(const std::wstring& text, std::size_t found) {
  return found == kNowhere ? L"" : text.substr(found + 1);
}

bool read_slowly(std::wstring text, unsigned code_page, url_object& url) {
  if (text.empty()) return true;
  while (!text.empty() && (text[0] == L' ' || text[0] == L'\t'))
    text.erase(0, 1);
  const std::size_t mark = text.find(L"://");
  if (mark == kNowhere || mark == 0) return false;
  url.schema = text.substr(0, mark + 3);
  text.erase(0, mark + 3);
  const std::size_t slash = text.find(L'/');
  if (slash == 0) return false;
  std::wstring host = before(text, slash);
  const std::size_t at = host.rfind(L'@');
  if (at != kNowhere) {
    const std::wstring both = before(host, at);
    const std::size_t colon = both.find(L':');
    url.user = url_object::decode_ex(before(both, colon), code_page);
    url.password = url_object::decode_ex(behind(both, colon), code_page);
    host = behind(host, at);
  }
  url.port =
      url_object::default_port_for(url_object::schema_type_for(url.schema));
  const std::size_t colon = host.find(L':');
  if (colon != kNowhere) {
    const std::wstring port = behind(host, colon);
    if (port.find_first_not_of(L"0123456789") != kNowhere) return false;
    url.port = static_cast<unsigned>(
        std::strtoull(std::string(port.begin(), port.end()).c_str(), nullptr,
                      10) &
        0xFFFFFFFF);
  }
  url.host = before(host, colon);
  url.path = slash == kNowhere ? L"/" : text.substr(slash);
  url.path = before(url.path, url.path.find(L'#'));
  return true;
}

void require_same(const url_object& want, const url_object& got) {
  require_equal(want.schema, got.schema, "the scheme");
  require_equal(want.user, got.user, "the user");
  require_equal(want.password, got.password, "the password");
  require_equal(want.host, got.host, "the host");
  require_equal(want.port, got.port, "the port");
  require_equal(want.path, got.path, "the path");
}

// False if there is no room, and nothing is written.
template <std::size_t kRoom>
bool write(const std::wstring& text, std::uint64_t& size,
           wchar_t (&field)[kRoom]) {
  if (text.size() > kRoom) return false;
  size = text.size();
  text.copy(field, kRoom);
  return true;
}

// What the C function answers and writes.
long write_slowly(bool is_url, const url_object& url, unsigned code_page,
                  url_info_u& info) {
  if (!is_url) return URL_E_PARSE;
  if (url.schema_type() == SCHEMA_UNKNOWN) return URL_E_UNSUPPORTED;
  const bool fits = write(url.schema, info.schema_len, info.schema) &&
                    write(url.user, info.user_len, info.user) &&
                    write(url.password, info.password_len, info.password) &&
                    write(url.host, info.host_len, info.host) &&
                    write(url.path, info.path_len, info.path);
  if (!fits) return URL_E_BUFFER;
  info.port = url.port;
  info.code_page = code_page;
  return 0;
}

void check_printed_record(const url_info_u& info, const std::wstring& want) {
  const std::unique_ptr<wchar_t[]> out(new wchar_t[want.size()]);
  std::size_t size = want.size();
  require_equal(0, url_info_to_str_u(out.get(), &size, &info), "prints");
  require_equal(want, std::wstring_view(out.get(), size), "the printed record");
  if (want.empty()) return;
  size = want.size() - 1;
  require_equal(URL_E_BUFFER, url_info_to_str_u(out.get(), &size, &info),
                "room");
  require(size == want.size() - 1, "a length stays when the room is too small");
}

void check_record(const std::wstring& text, unsigned code_page, bool is_url,
                  const url_object& url) {
  const ExactCopy copy{std::wstring_view(text)};
  const auto info = std::make_unique<url_info_u>();
  std::memset(info.get(), 0xA5, sizeof *info);
  const auto want = std::make_unique<url_info_u>(*info);
  const long code =
      parse_url_u(copy.data(), copy.size(), code_page, info.get());
  require_equal(write_slowly(is_url, url, code_page, *want), code,
                "the answer");
  require(std::memcmp(want.get(), info.get(), sizeof *want) == 0, "the record");
  if (code != 0) return;
  check_printed_record(*info, url.to_string());
}

void check_printed(const url_object& url, unsigned code_page) {
  const std::wstring printed = url.to_string();
  require(printed.empty() == (url.port == 0), "port 0 alone prints nothing");
  // "http://:80/" is printed without an authority, which is no URL.
  if (url.port == 0 || printed[url.schema.size()] == L'/') return;
  url_object again;
  require(url_object::parse_url(printed, code_page, again), "reads back");
  url_object want = url;
  for (std::wstring* part : {&want.user, &want.password}) {
    const bool plain = std::all_of(
        part->begin(), part->end(),
        [](wchar_t unit) { return unit > 0 && unit < 0x80 && unit != L'%'; });
    const std::wstring back =
        url_object::decode_ex(url_object::encode_ex(*part), code_page);
    if (plain) require_equal(*part, back, "plain text is escaped and decoded");
    *part = back;
  }
  require_same(want, again);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr unsigned kCodePages[] = {0, 65001, 936, 1252, 0xFFFFFFFF};
  fuzz::Input input(data, size);
  const unsigned code_page = kCodePages[input.choose(5)];
  const std::wstring text = input.text();
  url_object want;
  url_object got;
  const bool is_url = url_object::parse_url(text, code_page, got);
  require(read_slowly(text, code_page, want) == is_url, "whether it is a URL");
  // On a fault before the host the fields behind it keep their values: none.
  if (!is_url) want.port = 0;
  require_same(want, got);
  check_record(text, code_page, is_url, got);
  if (is_url) check_printed(got, code_page);
  return 0;
}
