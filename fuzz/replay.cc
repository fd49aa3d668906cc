// Runs a target without the fuzzer, as a test: replay FILE... reads each file,
// and what lies one change away from it; then short and random inputs.
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz.h"

namespace {

// Bytes that rules speak of and their neighbours, and starts of UTF-8.
constexpr char kTelling[] =
    "\0\t\n\r "
    "\"%&*+,-./0189:;<=?@AFGTZ[\\_`afgtz{|~\x7F\x80\xC3\xE4\xF0\xF8\xFF";

// A sanitized build, much slower here, takes samples.
#ifdef KORVANE_SANITIZED
constexpr std::size_t kPlaces = 32;
constexpr unsigned kPairs = 41;
#else
constexpr std::size_t kPlaces = 128;
constexpr unsigned kPairs = 1;
#endif

void read(const std::string& text) {
  // A copy of exactly its size.
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

void read_around(const std::string& text) {
  read(text);
  const std::size_t step = 1 + text.size() / kPlaces;
  for (std::size_t at = 0; at < text.size(); at += step) {
    const std::string head = text.substr(0, at);
    const std::string tail = text.substr(at + 1);
    read(head);
    read(head + tail);
    for (const char byte : std::string_view(kTelling, sizeof kTelling - 1)) {
      std::string changed = head;
      changed += byte;
      read(changed + tail);
      read(changed + text.substr(at));
    }
  }
}

// Each pair of bytes behind a choice that all targets know or take as text.
void read_short() {
  for (unsigned pair = 0; pair < 0x10000; pair += kPairs) {
    read({'0', static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)});
  }
}

void read_random() {
  std::mt19937 random(1);  // NOLINT(cert-msc*): the same each time
  for (std::size_t size = 0; size <= 300; ++size) {
    std::string text(size, '0');
    for (char& byte : text) byte = static_cast<char>(random() & 0xFF);
    read(text);
    for (char& byte : text) {
      byte = kTelling[random() % (sizeof kTelling - 1)];
    }
    read(text);
  }
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    read_around({std::istreambuf_iterator<char>(file), {}});
  }
  read_short();
  read_random();
  return argc > 1 ? 0 : 2;
}
