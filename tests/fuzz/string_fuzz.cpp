// std::string under a random sequence of operations at random positions and lengths, compared
// after each step with a model: a vector of the characters, edited by hand. Positions stay inside
// the string (past its end is an error that ends the process, tested elsewhere); lengths and the
// positions of the searches go anywhere, npos included.
#include "fuzz_input.h"
#include <string.h>
#include <string>
#include <vector>

namespace {

typedef std::vector<char> model;
const size_t npos = std::string::npos;

bool same(const std::string& s, const model& m) {
  return s.size() == m.size() && (m.empty() || memcmp(s.data(), &m[0], m.size()) == 0) &&
         s.c_str()[s.size()] == 0 && s.capacity() >= s.size();
}

size_t clamp(size_t n, size_t available) { return n < available ? n : available; }

void model_insert(model& m, size_t pos, const char* p, size_t n) {
  m.insert(m.begin() + static_cast<long>(pos), p, p + n);
}
void model_erase(model& m, size_t pos, size_t n) {
  m.erase(m.begin() + static_cast<long>(pos), m.begin() + static_cast<long>(pos + n));
}

bool in_set(char c, const std::string& set) { return set.find(c) != npos; }

// The searches, done the slow way over the model. An empty pattern is never found.
size_t model_find(const model& m, const std::string& t, size_t pos) {
  if (t.empty())
    return npos;
  for (size_t i = pos; i <= m.size() && t.size() <= m.size() - i; ++i)
    if (memcmp(&m[i], t.data(), t.size()) == 0)
      return i;
  return npos;
}
size_t model_rfind(const model& m, const std::string& t, size_t pos) {
  if (t.empty() || t.size() > m.size())
    return npos;
  size_t i = clamp(pos, m.size() - t.size());
  for (;; --i) {
    if (memcmp(&m[i], t.data(), t.size()) == 0)
      return i;
    if (i == 0)
      return npos;
  }
}
size_t model_first_of(const model& m, const std::string& set, size_t pos, bool in) {
  for (size_t i = pos; i < m.size(); ++i)
    if (in_set(m[i], set) == in)
      return i;
  return npos;
}
size_t model_last_of(const model& m, const std::string& set, size_t pos, bool in) {
  if (m.empty())
    return npos;
  for (size_t i = clamp(pos, m.size() - 1);; --i) {
    if (in_set(m[i], set) == in)
      return i;
    if (i == 0)
      return npos;
  }
}

int sign(int v) { return v < 0 ? -1 : v > 0 ? 1 : 0; }
int model_compare(const model& m, size_t pos, size_t n, const std::string& t) {
  size_t len = clamp(n, m.size() - pos);
  size_t common = clamp(len, t.size());
  int c = common ? memcmp(&m[pos], t.data(), common) : 0;
  if (c)
    return sign(c);
  return len < t.size() ? -1 : len > t.size() ? 1 : 0;
}

// A length: small, around the size, or npos.
size_t any_length(fuzz_input& in, size_t size) {
  unsigned choice = in.byte();
  if (choice >= 240)
    return npos;
  return in.number() % (size + 8);
}
size_t position_in(fuzz_input& in, size_t size) { return in.number() % (size + 1); }
size_t search_position(fuzz_input& in, size_t size) {
  return in.byte() >= 230 ? npos : in.number() % (size + 4);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  std::string start = in.text();
  std::string s(start);
  model m(start.begin(), start.end());
  unsigned steps = in.below(48) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    unsigned op = in.below(22);
    std::string t = in.text();
    switch (op) {
    case 0: {
      size_t pos = position_in(in, t.size()), n = any_length(in, t.size());
      s.append(t, pos, n);
      model_insert(m, m.size(), t.data() + pos, clamp(n, t.size() - pos));
      break;
    }
    case 1: {
      size_t n = clamp(in.byte(), t.size());
      s.append(t.data(), n);
      model_insert(m, m.size(), t.data(), n);
      break;
    }
    case 2: {
      size_t n = in.number() % 300;
      char c = static_cast<char>(in.byte());
      s.append(n, c);
      m.insert(m.end(), n, c);
      break;
    }
    case 3: {
      size_t pos = position_in(in, s.size());
      s.insert(pos, t);
      model_insert(m, pos, t.data(), t.size());
      break;
    }
    case 4: {
      size_t pos = position_in(in, s.size());
      size_t pos2 = position_in(in, t.size()), n = any_length(in, t.size());
      s.insert(pos, t, pos2, n);
      model_insert(m, pos, t.data() + pos2, clamp(n, t.size() - pos2));
      break;
    }
    case 5: {
      size_t pos = position_in(in, s.size());
      unsigned form = in.below(3);
      char c = static_cast<char>(in.byte());
      if (form == 0) {
        std::string::iterator at = s.insert(s.begin() + static_cast<long>(pos), c);
        FUZZ_CHECK(at - s.begin() == static_cast<long>(pos));
        m.insert(m.begin() + static_cast<long>(pos), c);
      } else if (form == 1) {
        size_t n = in.number() % 200;
        s.insert(s.begin() + static_cast<long>(pos), n, c);
        m.insert(m.begin() + static_cast<long>(pos), n, c);
      } else {
        s.insert(s.begin() + static_cast<long>(pos), t.begin(), t.end());
        model_insert(m, pos, t.data(), t.size());
      }
      break;
    }
    case 6: {
      size_t pos = position_in(in, s.size()), n = any_length(in, s.size());
      s.erase(pos, n);
      model_erase(m, pos, clamp(n, m.size() - pos));
      break;
    }
    case 7: {
      size_t first = position_in(in, s.size());
      size_t last = first + in.number() % (s.size() - first + 1);
      if (first < s.size() && in.flag()) {
        std::string::iterator after = s.erase(s.begin() + static_cast<long>(first));
        FUZZ_CHECK(after - s.begin() == static_cast<long>(first));
        model_erase(m, first, 1);
      } else {
        s.erase(s.begin() + static_cast<long>(first), s.begin() + static_cast<long>(last));
        model_erase(m, first, last - first);
      }
      break;
    }
    case 8: {
      size_t pos = position_in(in, s.size()), n = any_length(in, s.size());
      s.replace(pos, n, t);
      model_erase(m, pos, clamp(n, m.size() - pos));
      model_insert(m, pos, t.data(), t.size());
      break;
    }
    case 9: {
      size_t pos = position_in(in, s.size()), n = any_length(in, s.size());
      size_t count = in.number() % 200;
      char c = static_cast<char>(in.byte());
      s.replace(pos, n, count, c);
      model_erase(m, pos, clamp(n, m.size() - pos));
      m.insert(m.begin() + static_cast<long>(pos), count, c);
      break;
    }
    case 10: {
      size_t first = position_in(in, s.size());
      size_t last = first + in.number() % (s.size() - first + 1);
      s.replace(s.begin() + static_cast<long>(first), s.begin() + static_cast<long>(last), t);
      model_erase(m, first, last - first);
      model_insert(m, first, t.data(), t.size());
      break;
    }
    case 11: {
      size_t pos = position_in(in, t.size()), n = any_length(in, t.size());
      s.assign(t, pos, n);
      m.assign(t.begin() + static_cast<long>(pos),
               t.begin() + static_cast<long>(pos + clamp(n, t.size() - pos)));
      break;
    }
    case 12: {
      size_t n = in.number() % (s.size() + 300);
      char c = static_cast<char>(in.byte());
      s.resize(n, c);
      m.resize(n, c);
      break;
    }
    case 13: {
      size_t before = s.capacity();
      size_t n = in.number() % 3000;
      s.reserve(n);
      FUZZ_CHECK(s.capacity() >= n || s.capacity() >= before);
      break;
    }
    case 14: {
      char c = static_cast<char>(in.byte());
      s.push_back(c);
      m.push_back(c);
      break;
    }
    case 15: {
      // Copies share their characters until one is written: the other must not see it.
      std::string copy = s;
      char c = static_cast<char>(in.byte());
      if (!copy.empty() && in.flag()) {
        size_t pos = position_in(in, copy.size() - 1);
        copy[pos] = c;
        FUZZ_CHECK(same(s, m));
        if (in.flag()) {
          s = copy;
          m[pos] = c;
        }
      } else {
        copy += c;
        FUZZ_CHECK(same(s, m));
        if (in.flag()) {
          s.swap(copy);
          m.push_back(c);
        }
      }
      break;
    }
    case 16: {
      size_t pos = position_in(in, s.size()), n = any_length(in, s.size());
      std::string part = s.substr(pos, n);
      size_t len = clamp(n, m.size() - pos);
      FUZZ_CHECK(part.size() == len);
      FUZZ_CHECK(len == 0 || memcmp(part.data(), &m[pos], len) == 0);
      break;
    }
    case 17: {
      size_t pos = search_position(in, s.size());
      FUZZ_CHECK(s.find(t, pos) == model_find(m, t, pos));
      FUZZ_CHECK(s.rfind(t, pos) == model_rfind(m, t, pos));
      FUZZ_CHECK(s.find_first_of(t, pos) == model_first_of(m, t, pos, true));
      FUZZ_CHECK(s.find_first_not_of(t, pos) == model_first_of(m, t, pos, false));
      FUZZ_CHECK(s.find_last_of(t, pos) == model_last_of(m, t, pos, true));
      FUZZ_CHECK(s.find_last_not_of(t, pos) == model_last_of(m, t, pos, false));
      if (!t.empty()) {
        std::string one(1, t[0]);
        FUZZ_CHECK(s.find(t[0], pos) == model_find(m, one, pos));
        FUZZ_CHECK(s.rfind(t[0], pos) == model_rfind(m, one, pos));
      }
      break;
    }
    case 18: {
      size_t pos = position_in(in, s.size()), n = any_length(in, s.size());
      FUZZ_CHECK(sign(s.compare(pos, n, t)) == model_compare(m, pos, n, t));
      FUZZ_CHECK(sign(s.compare(t)) == model_compare(m, 0, npos, t));
      FUZZ_CHECK((s == t) == (model_compare(m, 0, npos, t) == 0));
      FUZZ_CHECK((s < t) == (model_compare(m, 0, npos, t) < 0));
      break;
    }
    case 19: {
      std::string other = t;
      s.swap(other);
      FUZZ_CHECK(s == t);
      s.swap(other);
      break;
    }
    case 20: {
      size_t pos = position_in(in, s.size()), n = in.number() % (s.size() + 8);
      std::vector<char> to(n + 4, '\x5a');
      size_t copied = s.copy(&to[0], n, pos);
      FUZZ_CHECK(copied == clamp(n, m.size() - pos));
      FUZZ_CHECK(copied == 0 || memcmp(&to[0], &m[pos], copied) == 0);
      for (size_t i = copied; i < to.size(); ++i)
        FUZZ_CHECK(to[i] == '\x5a');
      break;
    }
    default: {
      s += t;
      model_insert(m, m.size(), t.data(), t.size());
      break;
    }
    }
    FUZZ_CHECK(same(s, m));
  }
  return 0;
}
