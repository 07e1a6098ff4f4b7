/* A C client of the installed library. */
#include <kz/kzcommon.h>
#include <stdio.h>
#include <string.h>

typedef void function(void);

static function* const functions[] = {
#include "functions.inc"
};

int main(void) {
  char text[] = "\xE4\xEE\xEC"; /* the Russian word for house in Windows-1251 */
  strruansitooem(text, text);
  if (strcmp(text, "\xA4\xAE\xAC") != 0) return 1;
  if (DicOpen("/no/such/dictionary", 0) != NULL) return 1;
  if (kz_dict_dic_errno() != DIC_ERR_FILE) return 1;
  const size_t count = sizeof functions / sizeof functions[0];
  for (size_t i = 0; i < count; ++i) {
    if (functions[i] == NULL) return 1;
  }
  printf("the C client works, with %zu functions\n", count);
  return 0;
}
