// An element type for the sequence-container tests that counts its constructions, copies,
// assignments and destructions, and logs the values it is copied or assigned from.
#ifndef SEQUENCE_TRACKED_H
#define SEQUENCE_TRACKED_H

namespace seq {

struct tracked_counts {
  int live;        // constructed and not yet destroyed
  int copies;      // copy constructions
  int assignments; // copy assignments
  int destructions;
  int log[64]; // values copied or assigned from, in order, since reset_tracking()
  int logged;
};
tracked_counts tracking;

inline void reset_tracking() {
  int live = tracking.live;
  tracking = tracked_counts();
  tracking.live = live;
}

class tracked {
public:
  tracked() : value(0) { ++tracking.live; }
  tracked(int v) : value(v) { ++tracking.live; }
  tracked(const tracked& other) : value(other.value) {
    ++tracking.live;
    ++tracking.copies;
    note(other.value);
  }
  tracked& operator=(const tracked& other) {
    value = other.value;
    ++tracking.assignments;
    note(other.value);
    return *this;
  }
  ~tracked() {
    --tracking.live;
    ++tracking.destructions;
  }
  int value;

private:
  static void note(int v) {
    if (tracking.logged < 64)
      tracking.log[tracking.logged++] = v;
  }
};

inline bool operator==(const tracked& x, const tracked& y) { return x.value == y.value; }
inline bool operator<(const tracked& x, const tracked& y) { return x.value < y.value; }
inline bool operator>(const tracked& x, const tracked& y) { return y.value < x.value; }

// The logged values match `expected` (n of them) exactly.
inline bool log_is(const int* expected, int n) {
  if (tracking.logged != n)
    return false;
  for (int i = 0; i < n; ++i)
    if (tracking.log[i] != expected[i])
      return false;
  return true;
}

// A deterministic generator, 32-bit arithmetic.
struct generator {
  unsigned seed;
  explicit generator(unsigned s) : seed(s) {}
  unsigned next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned below(unsigned n) { return n ? next() % n : 0; }
};

} // namespace seq

#endif
