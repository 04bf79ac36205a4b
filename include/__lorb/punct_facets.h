// The punctuation facets: numpunct<char>, money_base, moneypunct<char, Intl> with its by-name form,
// and __numeric_digits<char>, the digit classification the parsers use.
#ifndef __LORB_PUNCT_FACETS_H
#define __LORB_PUNCT_FACETS_H

#include <__lorb/config.h>
#include <__lorb/locale_core.h>
#include <cstddef>
#include <string>

struct lconv;

namespace std {
template <class _CharT> class numpunct;

// Number punctuation, read once from the C library's LC_NUMERIC conventions.
template <> class __LORB_EXPORT numpunct<char> : public locale::facet {
public:
  typedef char char_type;
  typedef basic_string<char> string_type;

  // The "C" locale's values.
  explicit numpunct(size_t refs = 0)
      : locale::facet(refs), __decimal_point('.'), __thousands_sep('\0'), __grouping(),
        __truename("true"), __falsename("false") {}
  // The conventions of the named C library locale; a name it rejects (or a null one) reports
  // "Invalid locale name\n" through runtime_error.
  numpunct(const char* name, size_t refs);

  char decimal_point() const { return do_decimal_point(); }
  char thousands_sep() const { return do_thousands_sep(); }
  string_type grouping() const { return do_grouping(); }
  string_type truename() const { return do_truename(); }
  string_type falsename() const { return do_falsename(); }

  static locale::id id;

protected:
  virtual ~numpunct();
  virtual char do_decimal_point() const;
  virtual char do_thousands_sep() const;
  virtual string_type do_grouping() const;
  virtual string_type do_truename() const;
  virtual string_type do_falsename() const;

public:
  // The fields, in this order; the parsers read them directly from the library's own facet.
  char __decimal_point;
  char __thousands_sep;
  string_type __grouping;
  string_type __truename;
  string_type __falsename;
};

template <class _CharT> class numpunct_byname;

template <> class numpunct_byname<char> : public numpunct<char> {
public:
  explicit numpunct_byname(const char* name, size_t refs = 0) : numpunct<char>(name, refs) {}
};

class __LORB_EXPORT money_base {
public:
  // The parts are stored as these characters, so a pattern reads as text ("?-0v").
  enum part { none = '0', space = ' ', symbol = '?', sign = '-', value = 'v' };
  struct pattern {
    char field[5]; // four parts and a terminating NUL
  };

  // Symbol, sign, none, value: "?-0v".
  static pattern get_pat();
  // The pattern for the C library's three layout numbers; parens is set for sign_posn 0, where
  // the parentheses are left to the sign strings.
  static pattern get_pat(int cs_precedes, int sep_by_space, int sign_posn, bool& parens);
};

} // namespace std

namespace __vel {
// What moneypunct<char, true> and moneypunct<char, false> share: the fields and the virtual
// operations. Each of the two adds only its id and its own way of reading the C library.
class __LORB_EXPORT moneypunct_char : public std::locale::facet, public std::money_base {
public:
  typedef char char_type;
  typedef std::basic_string<char> string_type;

  char decimal_point() const { return do_decimal_point(); }
  char thousands_sep() const { return do_thousands_sep(); }
  string_type grouping() const { return do_grouping(); }
  string_type curr_symbol() const { return do_curr_symbol(); }
  string_type positive_sign() const { return do_positive_sign(); }
  string_type negative_sign() const { return do_negative_sign(); }
  int frac_digits() const { return do_frac_digits(); }
  pattern pos_format() const { return do_pos_format(); }
  pattern neg_format() const { return do_neg_format(); }

protected:
  // The "C" locale's values: no punctuation, empty strings, CHAR_MAX fraction digits, "?-0v".
  explicit moneypunct_char(std::size_t refs)
      : std::locale::facet(refs), __decimal_point('\0'), __thousands_sep('\0'), __curr_symbol(),
        __positive_sign(), __negative_sign(), __grouping(), __frac_digits(127),
        __pos_format(get_pat()), __neg_format(get_pat()) {}
  virtual ~moneypunct_char();

  virtual char do_decimal_point() const;
  virtual char do_thousands_sep() const;
  virtual string_type do_grouping() const;
  virtual string_type do_curr_symbol() const;
  virtual string_type do_positive_sign() const;
  virtual string_type do_negative_sign() const;
  virtual int do_frac_digits() const;
  virtual pattern do_pos_format() const;
  virtual pattern do_neg_format() const;

  // Takes what both forms read alike from the C library's monetary conventions.
  void read_common(const lconv& conventions);

  char __decimal_point;
  char __thousands_sep;
  string_type __curr_symbol;
  string_type __positive_sign;
  string_type __negative_sign;
  string_type __grouping;
  int __frac_digits;
  pattern __pos_format;
  pattern __neg_format;
};
} // namespace __vel

namespace std {
template <class _CharT, bool _Intl = false> class moneypunct;

// International conventions: the currency symbol is the three-letter code; both formats are fixed.
template <> class __LORB_EXPORT moneypunct<char, true> : public __vel::moneypunct_char {
public:
  explicit moneypunct(size_t refs = 0) : __vel::moneypunct_char(refs) {}

  static const bool intl = true;
  static locale::id id;

protected:
  virtual ~moneypunct();
  void init(const char* name);
};

// Local conventions: the local currency symbol, formats from the locale's layout numbers.
template <> class __LORB_EXPORT moneypunct<char, false> : public __vel::moneypunct_char {
public:
  explicit moneypunct(size_t refs = 0) : __vel::moneypunct_char(refs) {}

  static const bool intl = false;
  static locale::id id;

protected:
  virtual ~moneypunct();
  void init(const char* name);
};

template <class _CharT, bool _Intl = false> class moneypunct_byname;

template <> class __LORB_EXPORT moneypunct_byname<char, true> : public moneypunct<char, true> {
public:
  // Reports "Invalid locale name\n" through runtime_error for a name the C library rejects.
  explicit moneypunct_byname(const char* name, size_t refs = 0);

protected:
  virtual ~moneypunct_byname();
};

template <> class __LORB_EXPORT moneypunct_byname<char, false> : public moneypunct<char, false> {
public:
  // Reports "Invalid locale name\n" through runtime_error for a name the C library rejects.
  explicit moneypunct_byname(const char* name, size_t refs = 0);

protected:
  virtual ~moneypunct_byname();
};

template <class _CharT> struct __numeric_digits;

// Digit classification and values for the parsers; the NUL character is never a digit.
template <> struct __LORB_EXPORT __numeric_digits<char> {
  static bool is_digit(char c, int base);
  static int value(char c, int base);
  static bool is_dec_digit(char c);
  static bool is_hex_digit(char c);
  static bool is_oct_digit(char c);
  static int dec_value(char c);
  static int hex_value(char c);
  static int oct_value(char c);
};
} // namespace std

#endif
