// Runs a target under the fuzzer. Without it, as a test, runs it on the files
// that are named, on what is one change away from them, and on random inputs.
#include <fstream>
#include <iterator>
#include <random>

#include "fuzz.h"
#include "text/utf8.h"

Text widen(std::string_view bytes) {
  constexpr unsigned kOddUnits[] = {0xD800,     0x110000,   0x80000025,
                                    0x80000031, 0x80000041, 0x8000002F,
                                    0x8000003A, 0xFFFFFFFF};
  Text text;
  while (!bytes.empty()) {
    const auto first = static_cast<unsigned char>(bytes[0]);
    Text unit;
    std::size_t size = 1;
    while (!qk::text::decode_utf8(bytes.substr(0, size), unit) && size++ < 4) {
    }
    if (size > 4) {
      unit =
          static_cast<wchar_t>(first < 0xF8 ? first : kOddUnits[first - 0xF8]);
      size = 1;
    }
    text += unit;
    bytes.remove_prefix(size);
  }
  return text;
}

static void run(Bytes input) {
  current_input = input;
  check(input);
}

#ifdef KORVANE_FUZZER
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data,
                                      std::size_t size) {
  run({data, data + size});
  return 0;
}
#else
// A sanitized build, much slower here, takes samples.
#ifdef KORVANE_SANITIZED
constexpr std::size_t kPlaces = 32;
#else
constexpr std::size_t kPlaces = 128;
#endif

// Bytes that rules speak of, their neighbours, and starts of UTF-8.
static const Bytes kTelling =
    "\0\t\n\r \"%&*+,-./0189:;<=?@AFGTZ[\\_`afgtz{|~\x7F\x80\xC3\xE4\xF0\xF8"
    "\xFF"s;

static void run_around(const Bytes& text) {
  run(text);
  for (std::size_t at = 0; at < text.size(); at += 1 + text.size() / kPlaces) {
    run(text.substr(0, at));
    run(Bytes(text).erase(at, 1));
    for (const char byte : kTelling) {
      run(Bytes(text).replace(at, 1, 1, byte));
      run(Bytes(text).insert(at, 1, byte));
    }
  }
  Bytes repeated = text;
  while (repeated.size() - 1 < 100000) repeated += repeated;
  run(repeated);
}

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    run_around({std::istreambuf_iterator<char>(file), {}});
  }
  std::mt19937 random(1);  // NOLINT(cert-msc*): the same each time
  for (std::size_t size = 0; size <= 300; ++size) {
    Bytes telling(size, '0');
    for (char& byte : telling) byte = kTelling[random() % kTelling.size()];
    run(telling);
  }
  return argc > 1 ? 0 : 2;
}
#endif
