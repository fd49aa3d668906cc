// Runs a target under the fuzzer. Without it, as a test, runs it on the files
// that are named, and on all that they begin with.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

#include "fuzz.h"
#include "text/utf8.h"

static Bytes current_input;

void require(bool holds, const char* property) {
  if (holds) return;
  std::cerr << "\nbroken: " << property
            << "\nby: " << current_input.substr(0, 4096) << std::endl;
  std::abort();
}

Text widen(const Bytes& bytes) {
  Text text;
  if (qk::text::decode_utf8(bytes, text)) return text;
  text.clear();
  constexpr wchar_t kOdd[] = L"\xD800\x110000\x80000025\x8000002F";
  for (const unsigned char byte : bytes) {
    text += byte < 0xFC ? wchar_t(byte) : kOdd[byte - 0xFC];
  }
  return text;
}

static void run(const Bytes& input) {
  current_input = input;
  check(input);
}

#ifdef KORVANE_FUZZER
extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  run({data, size});
  return 0;
}
#else
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    const Bytes input(std::istreambuf_iterator<char>(file), {});
    for (std::size_t size = 0; size <= input.size(); ++size) {
      run(input.substr(0, size));
    }
  }
  return argc > 1 ? 0 : 2;
}
#endif
