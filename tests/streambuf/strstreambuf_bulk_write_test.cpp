// sputn on a buffer that is exactly a strstreambuf takes runs at a time; a class derived from it
// goes character by character through overflow. Both must end in the same state: the same
// arrays asked of palloc, the same text, the same count written, the same stop when palloc fails.
#include "lorb_test.h"
#include <stdlib.h>
#include <string.h>
#include <strstream>

namespace {

struct log {
  size_t sizes[256];
  int count;
  int fail_at; // the request that answers null, or -1
};
log* current = 0;

void* logging_palloc(size_t n) {
  int index = current->count++;
  if (index < 256)
    current->sizes[index] = n;
  return index == current->fail_at ? 0 : malloc(n);
}
void logging_pfree(void* p) { free(p); }

// Derived without overriding anything: sputn takes the character-by-character road.
struct derived_strstreambuf : std::strstreambuf {
  derived_strstreambuf(void* (*a)(size_t), void (*f)(void*)) : std::strstreambuf(a, f) {}
};

struct outcome {
  log allocations;
  long written;
  long pcount;
  char text[4096];
};

unsigned seed = 20261123u;
unsigned next_number() {
  seed = seed * 1103515245u + 12345u;
  return seed >> 8;
}

template <class _Buffer> void write_runs(_Buffer& buffer, const unsigned* lengths, int runs, outcome& out) {
  char run[100];
  out.written = 0;
  for (int r = 0; r < runs; ++r) {
    for (unsigned i = 0; i < lengths[r]; ++i)
      run[i] = static_cast<char>('a' + (out.written + i) % 26);
    std::streamsize put = buffer.sputn(run, lengths[r]);
    out.written += put;
    if (put != static_cast<std::streamsize>(lengths[r]))
      break;
  }
  out.pcount = buffer.pcount();
  char* text = buffer.str();
  if (text)
    memcpy(out.text, text, out.pcount < 4096 ? out.pcount : 4096);
  free(text); // the buffer frees nothing itself; its array came from logging_palloc
}

void run_both(const unsigned* lengths, int runs, int fail_at, outcome& exact, outcome& derived) {
  exact.allocations.count = 0;
  exact.allocations.fail_at = fail_at;
  current = &exact.allocations;
  {
    std::strstreambuf buffer(logging_palloc, logging_pfree);
    write_runs(buffer, lengths, runs, exact);
  }
  derived.allocations.count = 0;
  derived.allocations.fail_at = fail_at;
  current = &derived.allocations;
  {
    derived_strstreambuf buffer(logging_palloc, logging_pfree);
    write_runs(buffer, lengths, runs, derived);
  }
}

bool same(const outcome& a, const outcome& b) {
  if (a.written != b.written || a.pcount != b.pcount || a.allocations.count != b.allocations.count)
    return false;
  for (int i = 0; i < a.allocations.count && i < 256; ++i)
    if (a.allocations.sizes[i] != b.allocations.sizes[i])
      return false;
  return memcmp(a.text, b.text, a.pcount < 4096 ? a.pcount : 4096) == 0;
}

} // namespace

TEST(runs_of_generated_lengths_end_the_same_both_ways) {
  static outcome exact, derived;
  unsigned lengths[60];
  for (int trial = 0; trial < 40; ++trial) {
    for (int r = 0; r < 60; ++r)
      lengths[r] = next_number() % 60;
    run_both(lengths, 60, -1, exact, derived);
    if (!CHECK(same(exact, derived)))
      break;
  }
  CHECK(exact.pcount > 0);
}

TEST(a_failed_growth_stops_both_at_the_same_character) {
  static outcome exact, derived;
  unsigned lengths[60];
  for (int r = 0; r < 60; ++r)
    lengths[r] = 1 + next_number() % 50;
  for (int fail_at = 0; fail_at < 12; ++fail_at) {
    run_both(lengths, 60, fail_at, exact, derived);
    CHECK(same(exact, derived));
    CHECK_EQ(exact.allocations.count, fail_at + 1); // nothing is asked again after the failure
    CHECK_EQ(exact.pcount, exact.written);
  }
}

TEST(a_frozen_buffer_writes_only_into_its_put_area_both_ways) {
  std::strstreambuf exact;
  derived_strstreambuf derived(0, 0);
  exact.sputn("0123456789abcdefXYZ", 19);
  derived.sputn("0123456789abcdefXYZ", 19);
  exact.freeze(true);
  derived.freeze(true);
  CHECK_EQ(exact.sputn("more", 4), derived.sputn("more", 4));
  CHECK_EQ(exact.pcount(), derived.pcount());
  exact.freeze(false);
  derived.freeze(false);
  delete[] exact.str();
  delete[] derived.str();
}
