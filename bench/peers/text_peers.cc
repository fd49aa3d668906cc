#include <iconv.h>

#include "contest.h"
#include "peers.h"

bool peers::raw_iconv(const char* to, const char* from, const void* text,
                      std::size_t size, std::string& room) {
  iconv_t converter = iconv_open(to, from);
  char* input = const_cast<char*>(static_cast<const char*>(text));
  char* output = room.data();
  std::size_t left = room.size();
  const std::size_t result = iconv(converter, &input, &size, &output, &left);
  iconv_close(converter);
  bench::keep(room);
  return result != static_cast<std::size_t>(-1);
}
