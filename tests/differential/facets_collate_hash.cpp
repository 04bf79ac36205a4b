// Deliberate: the collate hash is this library's own, fixed bit for bit across runs.
#include <locale>
#include <stdio.h>
#include <string.h>

typedef std::collate<char> collate_facet;

int main() {
  const std::collate<char>& co = std::use_facet<collate_facet>(std::locale::classic());
  const char* texts[] = {
      "", "a", "abcd", "hello world", "\xff\xfe\xfd\xfc\x80", "Lorb++ collate hash"};
  for (int i = 0; i < 6; ++i)
    printf("%ld\n", co.hash(texts[i], texts[i] + strlen(texts[i])));
  return 0;
}
