// std::string under random operations at random positions and lengths, on three strings that copy
// each other, so that shared representations meet every mutator. Each string has a model: a fixed
// character buffer edited by hand. After each step every string must hold its model's characters,
// its NUL, and a capacity that is a multiple of 32 above its length.
// Positions stay inside the string: past its end is an error that ends the process (tested
// elsewhere). Lengths and search positions go anywhere, npos included, where the library clamps.
// Arguments may be the string's own characters: the results must be as if they were copied first.
#include "fuzz_input.h"
#include <iterator>
#include <string.h>
#include <string>

namespace {

const size_t npos = std::string::npos;
// The longest string a run builds: keeps each input fast.
const size_t limit = 2048;

struct text_model {
  char c[limit];
  size_t n;
};

const unsigned slots = 3;
text_model models[slots];

// The characters an operation takes, as they were before it: an input text or a string's own.
struct source {
  const std::string* str;
  char c[limit];
  size_t n;
};
source src;
// Scratch for the characters a model gains.
char added[limit];

size_t clamp(size_t n, size_t available) { return n < available ? n : available; }

// Every change of a model is one: n characters at pos give way to k new ones.
void model_replace(text_model& m, size_t pos, size_t n, const char* p, size_t k) {
  memmove(m.c + pos + k, m.c + pos + n, m.n - pos - n);
  memcpy(m.c + pos, p, k);
  m.n = m.n - n + k;
}
void model_fill(text_model& m, size_t pos, size_t n, size_t k, char ch) {
  memset(added, ch, k);
  model_replace(m, pos, n, added, k);
}

bool holds(const std::string& s, const text_model& m) {
  return s.size() == m.n && s.length() == m.n && s.empty() == (m.n == 0) &&
         memcmp(s.data(), m.c, m.n) == 0 && s.c_str() == s.data() && s.c_str()[m.n] == 0 &&
         s.capacity() > s.size() && s.capacity() % 32 == 0;
}

// A fresh representation's buffer is the next multiple of 32 strictly above its length.
bool fresh_capacity(const std::string& s) {
  return s.empty() || s.capacity() == (s.size() & ~size_t(31)) + 32;
}

// An input iterator that is not a pointer, for the range members' one-pass path.
class reader {
public:
  typedef std::input_iterator_tag iterator_category;
  typedef char value_type;
  typedef ptrdiff_t difference_type;
  typedef const char* pointer;
  typedef const char& reference;
  explicit reader(const char* p) : p_(p) {}
  const char& operator*() const { return *p_; }
  reader& operator++() {
    ++p_;
    return *this;
  }
  bool operator==(const reader& other) const { return p_ == other.p_; }
  bool operator!=(const reader& other) const { return p_ != other.p_; }

private:
  const char* p_;
};

bool in_set(char ch, const char* set, size_t n) { return memchr(set, ch, n) != 0; }

// The searches, the slow way. An empty pattern is never found.
size_t model_find(const text_model& m, const char* p, size_t k, size_t pos) {
  if (k == 0)
    return npos;
  for (size_t i = pos; i <= m.n && k <= m.n - i; ++i)
    if (memcmp(m.c + i, p, k) == 0)
      return i;
  return npos;
}
size_t model_rfind(const text_model& m, const char* p, size_t k, size_t pos) {
  if (k == 0 || k > m.n)
    return npos;
  for (size_t i = clamp(pos, m.n - k);; --i) {
    if (memcmp(m.c + i, p, k) == 0)
      return i;
    if (i == 0)
      return npos;
  }
}
size_t model_first_of(const text_model& m, const char* p, size_t k, size_t pos, bool in) {
  for (size_t i = pos; i < m.n; ++i)
    if (in_set(m.c[i], p, k) == in)
      return i;
  return npos;
}
size_t model_last_of(const text_model& m, const char* p, size_t k, size_t pos, bool in) {
  if (m.n == 0)
    return npos;
  for (size_t i = clamp(pos, m.n - 1);; --i) {
    if (in_set(m.c[i], p, k) == in)
      return i;
    if (i == 0)
      return npos;
  }
}

int sign(int v) { return v < 0 ? -1 : v > 0 ? 1 : 0; }
// Unsigned bytes, as char_traits<char>::compare orders them.
int model_compare(const char* a, size_t an, const char* b, size_t bn) {
  int c = memcmp(a, b, clamp(an, bn));
  if (c)
    return sign(c);
  return an < bn ? -1 : an > bn ? 1 : 0;
}

// A length: small, around the size, or npos.
size_t any_length(fuzz_input& in, size_t size) {
  if (in.byte() >= 240)
    return npos;
  return in.number() % (size + 8);
}
size_t position_in(fuzz_input& in, size_t size) { return in.number() % (size + 1); }
size_t search_position(fuzz_input& in, size_t size) {
  return in.byte() >= 230 ? npos : in.number() % (size + 4);
}
size_t count(fuzz_input& in) { return in.number() % 300; }

// The source's characters up to its first NUL, NUL-terminated, for the const char* forms.
char terminated[limit + 1];
size_t terminate_source() {
  size_t k = strnlen(src.c, src.n);
  memcpy(terminated, src.c, k);
  terminated[k] = 0;
  return k;
}

// Checks a string made by a constructor against the characters it should hold.
void check_made(const std::string& made, const char* p, size_t k) {
  FUZZ_CHECK(made.size() == k && memcmp(made.data(), p, k) == 0 && made.c_str()[k] == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  std::string s[slots];
  for (unsigned i = 0; i < slots; ++i)
    models[i].n = 0;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    unsigned op = in.below(32);
    std::string& S = s[in.below(slots)];
    text_model& M = models[&S - s];
    // The source: the input's next text, or one of the strings (this one included).
    std::string t;
    unsigned from = in.byte();
    if (from < 128) {
      t = in.text();
      src.str = &t;
      memcpy(src.c, t.data(), t.size());
      src.n = t.size();
    } else {
      unsigned j = from % slots;
      src.str = &s[j];
      memcpy(src.c, models[j].c, models[j].n);
      src.n = models[j].n;
    }
    const std::string& R = *src.str;
    const size_t room = limit - M.n;
    switch (op) {
    case 0: { // the constructors, the result put in place
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      switch (in.below(9)) {
      case 0: {
        size_t k0 = terminate_source();
        std::string made(terminated);
        check_made(made, terminated, k0);
        FUZZ_CHECK(fresh_capacity(made));
        S = made;
        model_replace(M, 0, M.n, terminated, k0);
        break;
      }
      case 1: {
        std::string made(R.data() + pos, k);
        check_made(made, src.c + pos, k);
        FUZZ_CHECK(fresh_capacity(made));
        S = made;
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      }
      case 2: {
        size_t c = count(in);
        std::string made(c, ch);
        FUZZ_CHECK(fresh_capacity(made));
        S = made;
        model_fill(M, 0, M.n, c, ch);
        break;
      }
      case 3: {
        std::string made(R, pos, n);
        check_made(made, src.c + pos, k);
        S = made;
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      }
      case 4: {
        std::string made(R.data() + pos, R.data() + pos + k);
        check_made(made, src.c + pos, k);
        S.swap(made);
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      }
      case 5: {
        std::string made((reader(R.data() + pos)), reader(R.data() + pos + k));
        check_made(made, src.c + pos, k);
        S.swap(made);
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      }
      case 6: {
        // Two integers are a count and a character.
        int c = static_cast<int>(count(in));
        std::string made(c, static_cast<int>(ch));
        S = made;
        model_fill(M, 0, M.n, static_cast<size_t>(c), ch);
        break;
      }
      case 7: {
        // A copy shares a shareable string's characters.
        std::string made(R);
        check_made(made, src.c, src.n);
        if (src.str == &t)
          FUZZ_CHECK(made.data() == R.data());
        S = made;
        model_replace(M, 0, M.n, src.c, src.n);
        break;
      }
      default: {
        std::string made;
        FUZZ_CHECK(made.empty() && made.c_str()[0] == 0);
        S.swap(made);
        M.n = 0;
        break;
      }
      }
      break;
    }
    case 1: { // the assignments
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      switch (in.below(8)) {
      case 0:
        S = R;
        model_replace(M, 0, M.n, src.c, src.n);
        break;
      case 1:
        S.assign(R, pos, n);
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      case 2:
        S.assign(R.data() + pos, k);
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      case 3: {
        size_t k0 = terminate_source();
        if (in.flag())
          S = terminated;
        else
          S.assign(terminated);
        model_replace(M, 0, M.n, terminated, k0);
        break;
      }
      case 4:
        S = ch;
        model_fill(M, 0, M.n, 1, ch);
        break;
      case 5: {
        size_t c = count(in);
        S.assign(c, ch);
        model_fill(M, 0, M.n, c, ch);
        break;
      }
      case 6:
        if (in.flag())
          S.assign(R.data() + pos, R.data() + pos + k);
        else
          S.assign(reader(R.data() + pos), reader(R.data() + pos + k));
        model_replace(M, 0, M.n, src.c + pos, k);
        break;
      default:
        S.assign(R);
        model_replace(M, 0, M.n, src.c, src.n);
        break;
      }
      break;
    }
    case 2:
    case 3: { // the appends
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      unsigned form = in.below(9);
      size_t c = form == 5 || form == 8 ? count(in) : 0;
      size_t grows = form == 0 || form == 7 ? src.n : form == 3 ? strnlen(src.c, src.n)
                     : form == 4                ? 1
                     : form == 5 || form == 8   ? c
                                                : k;
      if (grows > room)
        break;
      switch (form) {
      case 0:
        S.append(R);
        model_replace(M, M.n, 0, src.c, src.n);
        break;
      case 1:
        S.append(R, pos, n);
        model_replace(M, M.n, 0, src.c + pos, k);
        break;
      case 2:
        S.append(R.data() + pos, k);
        model_replace(M, M.n, 0, src.c + pos, k);
        break;
      case 3: {
        size_t k0 = terminate_source();
        if (in.flag())
          S.append(terminated);
        else
          S += terminated;
        model_replace(M, M.n, 0, terminated, k0);
        break;
      }
      case 4:
        if (in.flag())
          S.push_back(ch);
        else
          S += ch;
        model_fill(M, M.n, 0, 1, ch);
        break;
      case 5:
        S.append(c, ch);
        model_fill(M, M.n, 0, c, ch);
        break;
      case 6:
        // One-pass iterators may walk the string's own characters, which the growth moves.
        if (in.flag())
          S.append(R.data() + pos, R.data() + pos + k);
        else
          S.append(reader(R.data() + pos), reader(R.data() + pos + k));
        model_replace(M, M.n, 0, src.c + pos, k);
        break;
      case 7:
        S += R;
        model_replace(M, M.n, 0, src.c, src.n);
        break;
      default:
        S.append(static_cast<int>(c), static_cast<int>(ch));
        model_fill(M, M.n, 0, c, ch);
        break;
      }
      break;
    }
    case 4:
    case 5: { // the inserts by position
      size_t at = position_in(in, M.n);
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      unsigned form = in.below(5);
      size_t c = form == 4 ? count(in) : 0;
      size_t grows = form == 0 ? src.n : form == 3 ? strnlen(src.c, src.n) : form == 4 ? c : k;
      if (grows > room)
        break;
      switch (form) {
      case 0:
        S.insert(at, R);
        model_replace(M, at, 0, src.c, src.n);
        break;
      case 1:
        S.insert(at, R, pos, n);
        model_replace(M, at, 0, src.c + pos, k);
        break;
      case 2:
        S.insert(at, R.data() + pos, k);
        model_replace(M, at, 0, src.c + pos, k);
        break;
      case 3: {
        size_t k0 = terminate_source();
        S.insert(at, terminated);
        model_replace(M, at, 0, terminated, k0);
        break;
      }
      default:
        S.insert(at, c, ch);
        model_fill(M, at, 0, c, ch);
        break;
      }
      break;
    }
    case 6:
    case 7: { // the inserts by iterator
      size_t at = position_in(in, M.n);
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      unsigned form = in.below(5);
      size_t c = form == 1 || form == 4 ? count(in) : 0;
      size_t grows = form == 0 ? 1 : form == 1 || form == 4 ? c : k;
      if (grows > room)
        break;
      const char* first = R.data() + pos;
      switch (form) {
      case 0: {
        std::string::iterator put = S.insert(S.begin() + at, ch);
        FUZZ_CHECK(put == S.begin() + at && *put == ch);
        model_fill(M, at, 0, 1, ch);
        break;
      }
      case 1:
        S.insert(S.begin() + at, c, ch);
        model_fill(M, at, 0, c, ch);
        break;
      case 2:
        S.insert(S.begin() + at, first, first + k);
        model_replace(M, at, 0, src.c + pos, k);
        break;
      case 3:
        S.insert(S.begin() + at, reader(first), reader(first + k));
        model_replace(M, at, 0, src.c + pos, k);
        break;
      default:
        S.insert(S.begin() + at, static_cast<int>(c), static_cast<int>(ch));
        model_fill(M, at, 0, c, ch);
        break;
      }
      break;
    }
    case 8:
    case 9: { // the erases
      size_t at = position_in(in, M.n);
      size_t n = any_length(in, M.n);
      size_t k = clamp(n, M.n - at);
      switch (in.below(4)) {
      case 0:
        S.erase(at, n);
        break;
      case 1:
        if (at == M.n) {
          S.erase(at);
          k = 0;
        } else {
          std::string::iterator after = S.erase(S.begin() + at);
          FUZZ_CHECK(after == S.begin() + at);
          k = 1;
        }
        break;
      case 2: {
        std::string::iterator after = S.erase(S.begin() + at, S.begin() + at + k);
        FUZZ_CHECK(after == S.begin() + at);
        break;
      }
      default:
        if (in.flag()) {
          S.clear();
        } else {
          S.erase();
        }
        at = 0;
        k = M.n;
        break;
      }
      model_replace(M, at, k, "", 0);
      break;
    }
    case 10:
    case 11:
    case 12: { // the replaces
      size_t at = position_in(in, M.n);
      size_t n1 = any_length(in, M.n);
      size_t k1 = clamp(n1, M.n - at);
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      char ch = static_cast<char>(in.byte());
      unsigned form = in.below(12);
      size_t c = form == 4 || form == 9 || form == 11 ? count(in) : 0;
      size_t grows = form == 0 || form == 5 ? src.n
                     : form == 3 || form == 7 ? strnlen(src.c, src.n)
                     : c                      ? c
                                              : k;
      if (grows > room + k1)
        break;
      const char* first = R.data() + pos;
      switch (form) {
      case 0:
        S.replace(at, n1, R);
        model_replace(M, at, k1, src.c, src.n);
        break;
      case 1:
        S.replace(at, n1, R, pos, n);
        model_replace(M, at, k1, src.c + pos, k);
        break;
      case 2:
        S.replace(at, n1, first, k);
        model_replace(M, at, k1, src.c + pos, k);
        break;
      case 3: {
        size_t k0 = terminate_source();
        S.replace(at, n1, terminated);
        model_replace(M, at, k1, terminated, k0);
        break;
      }
      case 4:
        S.replace(at, n1, c, ch);
        model_fill(M, at, k1, c, ch);
        break;
      case 5:
        S.replace(S.begin() + at, S.begin() + at + k1, R);
        model_replace(M, at, k1, src.c, src.n);
        break;
      case 6:
        S.replace(S.begin() + at, S.begin() + at + k1, first, k);
        model_replace(M, at, k1, src.c + pos, k);
        break;
      case 7: {
        size_t k0 = terminate_source();
        S.replace(S.begin() + at, S.begin() + at + k1, terminated);
        model_replace(M, at, k1, terminated, k0);
        break;
      }
      case 8:
        S.replace(S.begin() + at, S.begin() + at + k1, first, first + k);
        model_replace(M, at, k1, src.c + pos, k);
        break;
      case 9:
        S.replace(S.begin() + at, S.begin() + at + k1, c, ch);
        model_fill(M, at, k1, c, ch);
        break;
      case 10:
        S.replace(S.begin() + at, S.begin() + at + k1, reader(first), reader(first + k));
        model_replace(M, at, k1, src.c + pos, k);
        break;
      default:
        S.replace(S.begin() + at, S.begin() + at + k1, static_cast<int>(c), static_cast<int>(ch));
        model_fill(M, at, k1, c, ch);
        break;
      }
      break;
    }
    case 13: { // substr and copy
      const std::string& view = S;
      size_t at = position_in(in, M.n), n = any_length(in, M.n);
      size_t k = clamp(n, M.n - at);
      if (in.flag()) {
        std::string part = view.substr(at, n);
        check_made(part, M.c + at, k);
        if (at == 0 && in.flag()) {
          std::string whole = view.substr();
          check_made(whole, M.c, M.n);
        }
      } else {
        char to[limit + 8];
        size_t want = n == npos ? limit + 8 : clamp(n, limit + 8);
        memset(to, 0x5a, sizeof to);
        size_t copied = view.copy(to, want, at);
        FUZZ_CHECK(copied == clamp(want, M.n - at));
        FUZZ_CHECK(memcmp(to, M.c + at, copied) == 0);
        for (size_t i = copied; i < sizeof to; ++i)
          FUZZ_CHECK(to[i] == 0x5a);
      }
      break;
    }
    case 14:
    case 15:
    case 16: { // the searches, by string, pointer and count, C string and character
      const std::string& view = S;
      size_t at = search_position(in, M.n);
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      const char* p = R.data() + pos;
      const char* mp = src.c + pos;
      switch (in.below(4)) {
      case 0:
        FUZZ_CHECK(view.find(R, at) == model_find(M, src.c, src.n, at));
        FUZZ_CHECK(view.rfind(R, at) == model_rfind(M, src.c, src.n, at));
        FUZZ_CHECK(view.find_first_of(R, at) == model_first_of(M, src.c, src.n, at, true));
        FUZZ_CHECK(view.find_first_not_of(R, at) == model_first_of(M, src.c, src.n, at, false));
        FUZZ_CHECK(view.find_last_of(R, at) == model_last_of(M, src.c, src.n, at, true));
        FUZZ_CHECK(view.find_last_not_of(R, at) == model_last_of(M, src.c, src.n, at, false));
        FUZZ_CHECK(view.find(R) == model_find(M, src.c, src.n, 0));
        FUZZ_CHECK(view.rfind(R) == model_rfind(M, src.c, src.n, npos));
        FUZZ_CHECK(view.find_last_of(R) == model_last_of(M, src.c, src.n, npos, true));
        break;
      case 1:
        FUZZ_CHECK(view.find(p, at, k) == model_find(M, mp, k, at));
        FUZZ_CHECK(view.rfind(p, at, k) == model_rfind(M, mp, k, at));
        FUZZ_CHECK(view.find_first_of(p, at, k) == model_first_of(M, mp, k, at, true));
        FUZZ_CHECK(view.find_first_not_of(p, at, k) == model_first_of(M, mp, k, at, false));
        FUZZ_CHECK(view.find_last_of(p, at, k) == model_last_of(M, mp, k, at, true));
        FUZZ_CHECK(view.find_last_not_of(p, at, k) == model_last_of(M, mp, k, at, false));
        break;
      case 2: {
        size_t k0 = terminate_source();
        const char* z = terminated;
        FUZZ_CHECK(view.find(z, at) == model_find(M, z, k0, at));
        FUZZ_CHECK(view.rfind(z, at) == model_rfind(M, z, k0, at));
        FUZZ_CHECK(view.find_first_of(z, at) == model_first_of(M, z, k0, at, true));
        FUZZ_CHECK(view.find_first_not_of(z, at) == model_first_of(M, z, k0, at, false));
        FUZZ_CHECK(view.find_last_of(z, at) == model_last_of(M, z, k0, at, true));
        FUZZ_CHECK(view.find_last_not_of(z, at) == model_last_of(M, z, k0, at, false));
        FUZZ_CHECK(view.find(z) == model_find(M, z, k0, 0));
        FUZZ_CHECK(view.find_first_not_of(z) == model_first_of(M, z, k0, 0, false));
        FUZZ_CHECK(view.find_last_not_of(z) == model_last_of(M, z, k0, npos, false));
        break;
      }
      default: {
        char ch = static_cast<char>(in.byte());
        FUZZ_CHECK(view.find(ch, at) == model_find(M, &ch, 1, at));
        FUZZ_CHECK(view.rfind(ch, at) == model_rfind(M, &ch, 1, at));
        FUZZ_CHECK(view.find_first_of(ch, at) == model_first_of(M, &ch, 1, at, true));
        FUZZ_CHECK(view.find_first_not_of(ch, at) == model_first_of(M, &ch, 1, at, false));
        FUZZ_CHECK(view.find_last_of(ch, at) == model_last_of(M, &ch, 1, at, true));
        FUZZ_CHECK(view.find_last_not_of(ch, at) == model_last_of(M, &ch, 1, at, false));
        FUZZ_CHECK(view.find(ch) == model_find(M, &ch, 1, 0));
        FUZZ_CHECK(view.rfind(ch) == model_rfind(M, &ch, 1, npos));
        break;
      }
      }
      break;
    }
    case 17:
    case 18: { // the comparisons
      const std::string& view = S;
      size_t at = position_in(in, M.n), n1 = any_length(in, M.n);
      size_t k1 = clamp(n1, M.n - at);
      size_t pos = position_in(in, src.n), n = any_length(in, src.n);
      size_t k = clamp(n, src.n - pos);
      int whole = model_compare(M.c, M.n, src.c, src.n);
      switch (in.below(4)) {
      case 0:
        FUZZ_CHECK(sign(view.compare(R)) == whole);
        FUZZ_CHECK((view == R) == (whole == 0) && (view != R) == (whole != 0));
        FUZZ_CHECK((view < R) == (whole < 0) && (view > R) == (whole > 0));
        FUZZ_CHECK((view <= R) == (whole <= 0) && (view >= R) == (whole >= 0));
        break;
      case 1:
        FUZZ_CHECK(sign(view.compare(at, n1, R)) == model_compare(M.c + at, k1, src.c, src.n));
        FUZZ_CHECK(sign(view.compare(at, n1, R, pos, n)) ==
                   model_compare(M.c + at, k1, src.c + pos, k));
        FUZZ_CHECK(sign(view.compare(at, n1, R.data() + pos, k)) ==
                   model_compare(M.c + at, k1, src.c + pos, k));
        break;
      default: {
        size_t k0 = terminate_source();
        const char* z = terminated;
        int zc = model_compare(M.c, M.n, z, k0);
        FUZZ_CHECK(sign(view.compare(z)) == zc);
        FUZZ_CHECK(sign(view.compare(at, n1, z)) == model_compare(M.c + at, k1, z, k0));
        FUZZ_CHECK((view == z) == (zc == 0) && (z == view) == (zc == 0));
        FUZZ_CHECK((view != z) == (zc != 0) && (z != view) == (zc != 0));
        FUZZ_CHECK((view < z) == (zc < 0) && (z < view) == (zc > 0));
        FUZZ_CHECK((view > z) == (zc > 0) && (z > view) == (zc < 0));
        FUZZ_CHECK((view <= z) == (zc <= 0) && (z <= view) == (zc >= 0));
        FUZZ_CHECK((view >= z) == (zc >= 0) && (z >= view) == (zc <= 0));
        break;
      }
      }
      break;
    }
    case 19: { // the concatenations, which change nothing
      const std::string& view = S;
      if (M.n + src.n + 1 > limit)
        break;
      char ch = static_cast<char>(in.byte());
      size_t k0 = terminate_source();
      char expect[2 * limit + 2];
      std::string joined;
      switch (in.below(5)) {
      case 0:
        joined = view + R;
        memcpy(expect, M.c, M.n);
        memcpy(expect + M.n, src.c, src.n);
        check_made(joined, expect, M.n + src.n);
        break;
      case 1:
        joined = terminated + view;
        memcpy(expect, terminated, k0);
        memcpy(expect + k0, M.c, M.n);
        check_made(joined, expect, k0 + M.n);
        break;
      case 2:
        joined = view + terminated;
        memcpy(expect, M.c, M.n);
        memcpy(expect + M.n, terminated, k0);
        check_made(joined, expect, M.n + k0);
        break;
      case 3:
        joined = ch + view;
        expect[0] = ch;
        memcpy(expect + 1, M.c, M.n);
        check_made(joined, expect, M.n + 1);
        break;
      default:
        joined = view + ch;
        memcpy(expect, M.c, M.n);
        expect[M.n] = ch;
        check_made(joined, expect, M.n + 1);
        break;
      }
      break;
    }
    case 20:
    case 21: { // resize
      size_t n = in.number() % (M.n + 300);
      if (n > limit)
        break;
      size_t before = M.n;
      if (in.flag()) {
        char ch = static_cast<char>(in.byte());
        S.resize(n, ch);
        if (n > before)
          model_fill(M, before, 0, n - before, ch);
      } else {
        S.resize(n);
        if (n > before)
          model_fill(M, before, 0, n - before, 0);
      }
      if (n < before)
        model_replace(M, n, before - n, "", 0);
      break;
    }
    case 22: { // reserve never shrinks
      size_t before = S.capacity();
      size_t n = in.number() % 3000;
      if (in.flag()) {
        S.reserve(n);
        FUZZ_CHECK(S.capacity() >= n);
      } else {
        S.reserve();
      }
      FUZZ_CHECK(S.capacity() >= before);
      break;
    }
    case 23:
    case 24: { // swap, member and free
      std::string& other = s[in.below(slots)];
      text_model& om = models[&other - s];
      if (in.flag())
        S.swap(other);
      else
        std::swap(S, other);
      text_model held = M;
      M = om;
      om = held;
      break;
    }
    case 25:
    case 26:
    case 27: { // copies: assigned or made, then one side written; the others must not see it
      std::string& other = s[in.below(slots)];
      text_model& om = models[&other - s];
      other = S;
      om = M;
      FUZZ_CHECK(holds(other, om));
      break;
    }
    case 28:
    case 29: { // writable access: at, operator[], begin and end, through copies
      if (M.n == 0)
        break;
      size_t at = in.number() % M.n;
      char ch = static_cast<char>(in.byte());
      const std::string& view = S;
      FUZZ_CHECK(view[at] == M.c[at] && view.at(at) == M.c[at]);
      FUZZ_CHECK(view[M.n] == 0);
      std::string before(S); // shares, unless S was written through before
      switch (in.below(5)) {
      case 0:
        S[at] = ch;
        break;
      case 1:
        S.at(at) = ch;
        break;
      case 2:
        *(S.begin() + at) = ch;
        break;
      case 3:
        *(S.end() - (M.n - at)) = ch;
        break;
      default: {
        // A reference taken before a copy never reaches the copy.
        char& r = S[at];
        std::string later(S);
        FUZZ_CHECK(later.data() != S.data());
        r = ch;
        check_made(later, M.c, M.n);
        break;
      }
      }
      check_made(before, M.c, M.n);
      M.c[at] = ch;
      FUZZ_CHECK(view[at] == ch && view.at(at) == ch);
      break;
    }
    case 30: { // the reverse walk
      const std::string& view = S;
      size_t i = M.n;
      for (std::string::const_reverse_iterator it = view.rbegin(); it != view.rend(); ++it)
        FUZZ_CHECK(i > 0 && *it == M.c[--i]);
      FUZZ_CHECK(i == 0 && static_cast<size_t>(view.rend() - view.rbegin()) == M.n);
      break;
    }
    default: { // a private copy written while this one is read
      std::string copy(S);
      if (copy.size() + src.n > limit)
        break;
      copy.append(R);
      copy.insert(0, 1, '#');
      check_made(S, M.c, M.n);
      break;
    }
    }
    for (unsigned i = 0; i < slots; ++i)
      FUZZ_CHECK(holds(s[i], models[i]));
  }
  return 0;
}
