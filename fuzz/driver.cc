// Runs a target under the fuzzer. Without it, as a test, runs it on the files
// that are named and on what is one change away from them.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

#include "fuzz.h"
#include "text/utf8.h"

using namespace std::string_literals;

static Bytes current_input;

void require(bool holds, const char* property) {
  if (holds) return;
  std::cerr << "\nbroken: " << property
            << "\nby: " << current_input.substr(0, 4096) << std::endl;
  std::abort();
}

unsigned take_code_page(Bytes& input) {
  constexpr unsigned kCodePages[] = {0, 65001, 936, 1252, ~0U, 950, 1, 1258};
  const unsigned choice = input.empty() ? 0 : input[0] & 7U;
  input.erase(0, 1);
  return kCodePages[choice];
}

Text widen(const Bytes& bytes) {
  const Text odd_units =
      L"\xD800\x110000\x80000025\x80000031\x80000041\x8000002F\x8000003A"
      L"\xFFFFFFFF";
  Text text;
  if (qk::text::decode_utf8(bytes, text)) return text;
  text.clear();
  for (const unsigned char byte : bytes) {
    text += byte < 0xF8 ? wchar_t(byte) : odd_units[byte - 0xF8];
  }
  return text;
}

static void run(Bytes input) {
  current_input = input;
  check(input);
}

#ifdef KORVANE_FUZZER
extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  run({data, size});
  return 0;
}
#else
// Bytes that rules speak of, their neighbours, and starts of UTF-8.
static const Bytes kTelling =
    "\0\t\n\r \"%&*+,-./0189:;<=?@AFGTZ[\\_`afgtz{|~\x7F\x80\xC3\xE4\xF0\xF8"
    "\xFF"s;

static void run_around(const Bytes& text) {
  run(text);
  for (std::size_t at = 0; at < text.size(); at += 1 + text.size() / 64) {
    run(text.substr(0, at));
    run(Bytes(text).erase(at, 1));
    for (const char byte : kTelling) {
      run(Bytes(text).replace(at, 1, 1, byte));
      run(Bytes(text).insert(at, 1, byte));
    }
  }
  Bytes repeated = text + text;
  while (repeated.size() < 100000) repeated += text;
  run(repeated);
}

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    run_around({std::istreambuf_iterator<char>(file), {}});
  }
  return argc > 1 ? 0 : 2;
}
#endif
