/* A C client of the installed library. */
#include <kz/codepage.h>
#include <kz/dic_error.h>
#include <kz/dictionary.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  char text[] = "\xE4\xEE\xEC"; /* the Russian word for house in Windows-1251 */
  strruansitooem(text, text);
  if (strcmp(text, "\xA4\xAE\xAC") != 0) return 1;
  if (DicOpen("/no/such/dictionary", 0) != NULL) return 1;
  if (kz_dict_dic_errno() != DIC_ERR_FILE) return 1;
  puts("the C client works");
  return 0;
}
