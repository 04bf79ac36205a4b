// The logic_error and runtime_error families carry the text they are given, through copies too.
#include <stdexcept>
#include <stdio.h>
#include <string>

static void show(const char* label, const std::exception& e) {
  printf("%s: [%s]\n", label, e.what());
}

int main() {
  show("logic_error", std::logic_error("logic"));
  show("domain_error", std::domain_error("domain"));
  show("invalid_argument", std::invalid_argument("invalid"));
  show("length_error", std::length_error("length"));
  show("out_of_range", std::out_of_range("range"));
  show("runtime_error", std::runtime_error("runtime"));
  show("range_error", std::range_error("range error"));
  show("overflow_error", std::overflow_error("overflow"));
  show("underflow_error", std::underflow_error("underflow"));

  std::string text("from a string");
  std::runtime_error from_string(text);
  text[0] = 'X';
  show("from_string", from_string);

  std::out_of_range original("original");
  std::out_of_range copy(original);
  show("copy", copy);
  std::out_of_range target("target");
  target = original;
  show("assigned", target);
  target = target;
  show("self_assigned", target);

  std::logic_error empty("");
  show("empty", empty);

  const std::exception& base = original;
  std::logic_error sliced(static_cast<const std::logic_error&>(base));
  show("sliced", sliced);
  return 0;
}
