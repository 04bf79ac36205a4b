// collate<char> of the classic locale: comparison results and transformed forms.
#include <locale>
#include <stdio.h>
#include <string.h>
#include <string>

typedef std::collate<char> collate_facet;

int main() {
  const std::collate<char>& co = std::use_facet<collate_facet>(std::locale::classic());
  const char* pairs[][2] = {{"abc", "abd"}, {"abd", "abc"}, {"abc", "abc"}, {"", "a"},
                            {"B", "a"},     {"a", "zzzz"},  {"abc", "ab"}};
  for (int i = 0; i < 7; ++i) {
    const char* a = pairs[i][0];
    const char* b = pairs[i][1];
    printf("compare \"%s\" \"%s\": %d\n", a, b, co.compare(a, a + strlen(a), b, b + strlen(b)));
  }
  const char text[] = "transform me";
  std::string t = co.transform(text, text + sizeof text - 1);
  printf("transform: \"%s\" (%d)\n", t.c_str(), static_cast<int>(t.size()));
  t = co.transform(text, text + 9);
  printf("transform part: \"%s\"\n", t.c_str());
  return 0;
}
