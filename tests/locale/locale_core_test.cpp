// The locale handle: the classic and global locales, names, counts, assignment, lookup, errors.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <locale>

TEST(two_default_locales_share_the_classic_representation) {
  std::locale a;
  std::locale b;
  CHECK(a.__imp == b.__imp);
  CHECK(a.__imp == std::locale::classic().__imp);
  CHECK(std::locale::global_ == a.__imp);
  CHECK_STR(a.name().c_str(), "C");
}

TEST(classic_is_built_once) {
  const std::locale& first = std::locale::classic();
  const std::locale& second = std::locale::classic();
  CHECK(&first == &second);
  CHECK(first.__imp == second.__imp);
}

TEST(each_handle_counts_once_on_its_representation) {
  std::locale a;
  unsigned base = refs_of(a);
  {
    std::locale b;
    CHECK_EQ(refs_of(a), base + 1);
    std::locale c(b);
    CHECK_EQ(refs_of(a), base + 2);
    CHECK(c.__imp == a.__imp);
  }
  CHECK_EQ(refs_of(a), base);
}

TEST(a_named_locale_has_its_own_representation_and_name) {
  std::locale german("de_DE.UTF-8");
  CHECK(german.__imp != std::locale::classic().__imp);
  CHECK_EQ(refs_of(german), 1u);
  CHECK_STR(german.name().c_str(), "de_DE.UTF-8");
}

TEST(a_named_locale_restores_the_c_library_locale) {
  const char* before = setlocale(LC_ALL, 0);
  char kept[256];
  strcpy(kept, before);
  std::locale french("fr_FR.UTF-8");
  CHECK_STR(setlocale(LC_ALL, 0), kept);
}

TEST(a_named_locale_reads_its_punctuation_while_its_name_is_in_force) {
  std::locale german("de_DE.UTF-8");
  CHECK_EQ(std::use_facet<std::numpunct<char> >(german).decimal_point(), ',');
  CHECK_EQ(std::use_facet<std::numpunct<char> >(std::locale::classic()).decimal_point(), '.');
}

TEST(the_name_star_keeps_its_name_and_builds_c_facets) {
  // "*" is no C library locale name, so only the combining path could pass it; the by-name
  // facets then take "C".
  std::locale::imp* rep = new std::locale::imp("*", std::locale::numeric);
  CHECK_STR(rep->name.c_str(), "*");
  std::locale::facet* numbers = rep->facets.data[std::numpunct<char>::id.__number()];
  CHECK_EQ(static_cast<std::numpunct<char>*>(numbers)->decimal_point(), '.');
  delete rep;
}

TEST(every_facet_of_a_named_locale_is_managed_and_held_once) {
  std::locale italian("it_IT.UTF-8");
  unsigned held = 0;
  for (unsigned i = 1; i < italian.__imp->facets.size; ++i) {
    std::locale::facet* f = italian.__imp->facets.data[i];
    if (!f)
      continue;
    ++held;
    CHECK(f->__managed);
    CHECK_EQ(f->__refs, 1u);
  }
  CHECK_EQ(held, 12u);
  CHECK(italian.__imp->facets.data[0] == 0);
}

TEST(self_assignment_changes_no_count) {
  std::locale german("de_DE.UTF-8");
  const std::locale::facet* numbers = facet_of<std::numpunct<char> >(german);
  german = german;
  CHECK_EQ(refs_of(german), 1u);
  CHECK_EQ(numbers->__refs, 1u);
}

TEST(assignment_between_handles_of_one_representation_changes_no_count) {
  std::locale german("de_DE.UTF-8");
  std::locale copy(german);
  copy = german;
  CHECK_EQ(refs_of(german), 2u);
  CHECK_EQ(facet_of<std::ctype<char> >(german)->__refs, 1u);
}

TEST(assignment_moves_a_handle_and_frees_the_representation_it_left_last) {
  counted_ctype_destroyed = 0;
  std::locale a("C");
  place(a, new counted_ctype(0), std::ctype<char>::id);
  std::locale b("fr_FR.UTF-8");
  const std::locale& returned = (a = b);
  CHECK(&returned == &a);
  CHECK(a.__imp == b.__imp);
  CHECK_EQ(refs_of(b), 2u);
  CHECK_EQ(counted_ctype_destroyed, 1);
}

TEST(a_managed_facet_dies_with_its_last_table) {
  counted_ctype_destroyed = 0;
  std::locale* a = new std::locale("C");
  place(*a, new counted_ctype(0), std::ctype<char>::id);
  std::locale* b = new std::locale(std::locale::classic(), *a, std::locale::ctype);
  const std::locale::facet* shared = facet_of<std::ctype<char> >(*b);
  CHECK_EQ(shared->__refs, 2u);
  delete a;
  CHECK_EQ(shared->__refs, 1u);
  CHECK_EQ(counted_ctype_destroyed, 0);
  delete b;
  CHECK_EQ(counted_ctype_destroyed, 1);
}

TEST(a_facet_made_with_refs_1_survives_every_locale_that_held_it) {
  counted_ctype_destroyed = 0;
  counted_ctype* own = new counted_ctype(1);
  {
    std::locale a("C");
    place(a, own, std::ctype<char>::id);
    std::locale b(std::locale::classic(), a, std::locale::ctype);
    std::locale c(b);
    std::locale d(b, "de_DE.UTF-8", std::locale::numeric);
    CHECK(facet_of<std::ctype<char> >(d) == own);
    CHECK(!own->__managed);
    CHECK_EQ(own->__refs, 0u);
  }
  CHECK_EQ(counted_ctype_destroyed, 0);
  CHECK_EQ(own->__refs, 0u);
  delete own;
  CHECK_EQ(counted_ctype_destroyed, 1);
}

TEST(lookup_returns_the_table_entry) {
  const std::locale& c = std::locale::classic();
  unsigned index = std::collate<char>::id.__number();
  CHECK(facet_of<std::collate<char> >(c) == c.__imp->facets.data[index]);
  CHECK(std::has_facet<std::collate<char> >(c));
}

struct never_held_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id never_held_facet::id;

struct another_never_held_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id another_never_held_facet::id;

TEST(looking_up_a_never_held_facet_numbers_it_after_all_others_and_finds_nothing) {
  std::locale c;
  CHECK_EQ(never_held_facet::id.__value, 0u);
  CHECK(!std::has_facet<never_held_facet>(c));
  unsigned assigned = never_held_facet::id.__value;
  CHECK(assigned > money_get_facet::id.__value);
  CHECK(assigned >= c.__imp->facets.size);
  CHECK(!std::has_facet<another_never_held_facet>(c));
  CHECK_EQ(another_never_held_facet::id.__value, assigned + 1);
  CHECK(!std::has_facet<never_held_facet>(c));
  CHECK_EQ(never_held_facet::id.__value, assigned);
}

static void use_never_held_facet() {
  std::locale c;
  std::use_facet<never_held_facet>(c);
}

TEST(using_a_missing_facet_reports_bad_cast_and_aborts) {
  EXPECT_ABORT(use_never_held_facet(), "bad_cast: Facet not present\n\n");
}

static void build_locale_from_null() {
  report_c_locale_on_abort("it_IT.UTF-8");
  std::locale broken(static_cast<const char*>(0));
}

static void build_locale_from_unknown_name() {
  report_c_locale_on_abort("fr_FR.UTF-8");
  std::locale broken("xx_NOWHERE.UTF-8");
}

TEST(a_null_name_is_an_invalid_locale_name_and_leaves_the_c_locale) {
  EXPECT_CHILD(build_locale_from_null(), lt::aborts(), "it_IT.UTF-8",
               "runtime_error: Invalid locale name\n\n");
}

TEST(an_unknown_name_is_an_invalid_locale_name_and_leaves_the_c_locale) {
  EXPECT_CHILD(build_locale_from_unknown_name(), lt::aborts(), "fr_FR.UTF-8",
               "runtime_error: Invalid locale name\n\n");
}

ISOLATED_TEST(classic_is_recorded_for_destruction_at_exit) {
  std::locale held;
  // classic's own handle, the four standard streams, their three buffers, and this one
  CHECK_EQ(refs_of(held), 9u);
  __process_needed_destructions();
  CHECK_EQ(refs_of(held), 1u);
}

ISOLATED_TEST(assignment_clears_global_when_it_frees_the_global_representation) {
  std::locale global_handle;
  __process_needed_destructions(); // the classic locale's handle lets go
  std::locale::imp* global_rep = std::locale::global_;
  CHECK(global_rep == global_handle.__imp);
  std::locale other("C");
  global_handle = other;
  CHECK(std::locale::global_ == 0);
}

ISOLATED_TEST(destruction_leaves_global_pointing_at_the_freed_representation) {
  std::locale* global_handle = new std::locale;
  __process_needed_destructions();
  std::locale::imp* global_rep = std::locale::global_;
  delete global_handle;
  CHECK(std::locale::global_ == global_rep); // kept: only assignment clears it
  std::locale::global_ = 0;                  // so that nothing here uses the freed one
}

TEST(category_values) {
  CHECK_EQ(std::locale::collate, 0x10);
  CHECK_EQ(std::locale::ctype, 0x20);
  CHECK_EQ(std::locale::monetary, 0x40);
  CHECK_EQ(std::locale::numeric, 0x80);
  CHECK_EQ(std::locale::time, 0x100);
  CHECK_EQ(std::locale::messages, 0x200);
  CHECK_EQ(std::locale::all, 0x3F0);
}

TEST(the_handle_is_one_pointer_and_the_facet_base_two_fields_after_the_vtable) {
  CHECK_EQ(sizeof(std::locale), 4u);
  CHECK_EQ(sizeof(std::locale::id), 4u);
  CHECK_EQ(sizeof(std::locale::facet), 12u);
}
