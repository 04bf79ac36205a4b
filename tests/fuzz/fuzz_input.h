// What every fuzz target shares: the input read as a run of choices, and a check that stops the
// process with a signal the fuzzer records.
#ifndef FUZZ_INPUT_H
#define FUZZ_INPUT_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Each take consumes from the front. An input that runs out reads as zeros, so that every input,
// the empty one included, is a complete run.
class fuzz_input {
public:
  fuzz_input(const uint8_t* data, size_t size) : at_(data), end_(data + size) {}

  bool empty() const { return at_ == end_; }
  size_t left() const { return static_cast<size_t>(end_ - at_); }

  unsigned byte() { return at_ == end_ ? 0u : *at_++; }
  // A choice among n (n > 0).
  unsigned below(unsigned n) { return byte() % n; }
  bool flag() { return (byte() & 1) != 0; }
  // Up to 16 bits, for positions and lengths that may pass a container's size.
  unsigned number() {
    unsigned high = byte();
    return (high << 8) | byte();
  }

  // A length byte, then that many bytes (fewer when the input ends).
  std::string text() { return bytes(byte()); }
  std::string bytes(size_t n) {
    if (n > left())
      n = left();
    std::string s(reinterpret_cast<const char*>(at_), n);
    at_ += n;
    return s;
  }
  std::string rest() { return bytes(left()); }

private:
  const uint8_t* at_;
  const uint8_t* end_;
};

// A broken invariant is a finding: the message names it, abort() makes the fuzzer keep the input.
inline void fuzz_failed(const char* what, const char* file, int line) {
  fprintf(stderr, "%s:%d: fuzz check failed: %s\n", file, line, what);
  abort();
}

#define FUZZ_CHECK(condition) ((condition) ? (void)0 : fuzz_failed(#condition, __FILE__, __LINE__))

#endif
