// In a library of its own, with nothing of Boost visible: libtorrent brings
// another version of it.
#include <boost/url.hpp>
#include <boost/url/src.hpp>

#include "contest.h"
#include "peers.h"

namespace urls = boost::urls;

bool peers::boost_url(const std::string& url) {
  const auto parsed = urls::parse_uri(url);
  if (!parsed) return false;
  if (parsed->has_userinfo()) {
    static std::string user;
    static std::string password;
    parsed->user(urls::string_token::assign_to(user));
    parsed->password(urls::string_token::assign_to(password));
  }
  bench::keep(*parsed);
  return true;
}

bool peers::boost_file_name(const std::string& url) {
  const auto parsed = urls::parse_uri(url);
  if (!parsed) return false;
  const auto segments = parsed->segments();
  bench::keep(segments.empty() ? std::string() : segments.back());
  return true;
}
