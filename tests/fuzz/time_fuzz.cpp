// time_get and time_put over generated formats: conversions of every letter (known and unknown),
// literals, and a lone '%' at the end, over random text and random tm fields. The pointer
// instances and the stream-buffer instances must agree on every field, the bits and the count.
#include "facets/string_sink_iterator.h"
#include "fuzz_input.h"
#include <locale>
#include <sstream>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <time.h>

namespace {

typedef std::time_get<char, const char*> array_time_get;
typedef std::istreambuf_iterator<char> buffer_in;

struct array_reader : array_time_get {
  array_reader() : array_time_get(1) {}
  using array_time_get::do_time_scanf;
};
struct buffer_reader : std::time_get<char> {
  buffer_reader() : std::time_get<char>(1) {}
  using std::time_get<char>::do_time_scanf;
};

const char conversions[] = "aAbBcCdDeHIjmMnprRStTUwWxXyY%Zz";

std::string generated_format(fuzz_input& in) {
  std::string format;
  unsigned parts = in.below(10);
  for (unsigned i = 0; i < parts; ++i) {
    unsigned choice = in.byte();
    if (choice < 160) {
      format += '%';
      format += conversions[choice % (sizeof conversions - 1)];
    } else if (choice < 250) {
      format += static_cast<char>(in.byte());
    } else {
      format += '%'; // a lone one, or before whatever comes next
    }
  }
  return format;
}

tm marked_tm() {
  tm t;
  memset(&t, 0, sizeof t);
  t.tm_sec = t.tm_min = t.tm_hour = t.tm_mday = t.tm_mon = t.tm_year = -77;
  t.tm_wday = t.tm_yday = t.tm_isdst = -77;
  return t;
}

bool same_tm(const tm& a, const tm& b) {
  return a.tm_sec == b.tm_sec && a.tm_min == b.tm_min && a.tm_hour == b.tm_hour &&
         a.tm_mday == b.tm_mday && a.tm_mon == b.tm_mon && a.tm_year == b.tm_year &&
         a.tm_wday == b.tm_wday && a.tm_yday == b.tm_yday && a.tm_isdst == b.tm_isdst;
}

struct reading {
  tm t;
  std::ios_base::iostate err;
  long taken;
};

// One reading through both instances: the format walk itself, or one of the five public gets.
void read(unsigned which, const std::string& format, const std::string& text) {
  std::istringstream stream;
  char* first = new char[text.size() + 1];
  memcpy(first, text.data(), text.size());
  first[text.size()] = '\x7f';
  const char* end = first + text.size();
  array_reader array_facet;
  reading a = {marked_tm(), std::ios_base::goodbit, 0};
  const char* stop;
  switch (which) {
  case 0: stop = array_facet.get_time(first, end, stream, a.err, &a.t); break;
  case 1: stop = array_facet.get_date(first, end, stream, a.err, &a.t); break;
  case 2: stop = array_facet.get_weekday(first, end, stream, a.err, &a.t); break;
  case 3: stop = array_facet.get_monthname(first, end, stream, a.err, &a.t); break;
  case 4: stop = array_facet.get_year(first, end, stream, a.err, &a.t); break;
  default:
    stop = array_facet.do_time_scanf(first, end, stream, a.err, &a.t, format.data(),
                                     format.data() + format.size());
    break;
  }
  a.taken = stop - first;
  delete[] first;

  std::stringbuf buffer(text);
  buffer_reader buffer_facet;
  reading b = {marked_tm(), std::ios_base::goodbit, 0};
  buffer_in from(&buffer), to;
  switch (which) {
  case 0: buffer_facet.get_time(from, to, stream, b.err, &b.t); break;
  case 1: buffer_facet.get_date(from, to, stream, b.err, &b.t); break;
  case 2: buffer_facet.get_weekday(from, to, stream, b.err, &b.t); break;
  case 3: buffer_facet.get_monthname(from, to, stream, b.err, &b.t); break;
  case 4: buffer_facet.get_year(from, to, stream, b.err, &b.t); break;
  default:
    buffer_facet.do_time_scanf(from, to, stream, b.err, &b.t, format.data(),
                               format.data() + format.size());
    break;
  }
  b.taken = static_cast<long>(text.size()) - static_cast<long>(buffer.in_avail());

  FUZZ_CHECK(a.taken >= 0 && a.taken <= static_cast<long>(text.size()));
  FUZZ_CHECK(a.taken == b.taken);
  FUZZ_CHECK(a.err == b.err);
  FUZZ_CHECK(same_tm(a.t, b.t));
}

// Writes into a string; compared with what the stream-buffer instance wrote.
struct sink_writer : std::time_put<char, string_sink_iterator> {
  sink_writer() : std::time_put<char, string_sink_iterator>(1) {}
};

int any_int(fuzz_input& in) {
  unsigned a = in.byte(), b = in.byte();
  // Mostly near the fields' ranges, sometimes anywhere.
  if (a & 0x80)
    return static_cast<int>((a << 24) | (b << 16) | (in.byte() << 8) | in.byte());
  return static_cast<int>(b) - 64 + static_cast<int>(a & 0x7f) * 10;
}

void write(fuzz_input& in, const std::string& format) {
  tm t;
  memset(&t, 0, sizeof t);
  t.tm_sec = any_int(in);
  t.tm_min = any_int(in);
  t.tm_hour = any_int(in);
  t.tm_mday = any_int(in);
  t.tm_mon = any_int(in);
  t.tm_year = any_int(in);
  t.tm_wday = any_int(in);
  t.tm_yday = any_int(in);
  t.tm_isdst = any_int(in);
  char fill = static_cast<char>(in.byte());
  std::ostringstream stream;
  stream.width(in.below(40));
  std::string by_sink;
  string_sink_iterator sink = {&by_sink};
  sink_writer writer;
  writer.put(sink, stream, fill, &t, format.data(), format.data() + format.size());
  const std::time_put<char>& facet = std::use_facet<std::time_put<char> >(stream.getloc());
  facet.put(std::ostreambuf_iterator<char>(stream), stream, fill, &t, format.data(),
            format.data() + format.size());
  FUZZ_CHECK(stream.str() == by_sink);
  // One conversion through the single-letter put as well.
  std::string one;
  string_sink_iterator one_sink = {&one};
  writer.put(one_sink, stream, fill, &t, conversions[in.below(sizeof conversions - 1)]);
}

struct classic_names {
  classic_names() { setenv("LC_ALL", "C", 1); }
};
const classic_names names_of_c = classic_names();

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  unsigned action = in.below(8);
  std::string format = generated_format(in);
  if (action == 7)
    write(in, format);
  else
    read(action, format, in.bytes(512));
  return 0;
}
