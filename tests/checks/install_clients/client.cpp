// A C++11 client of the installed library.
#include <kz/array.h>
#include <kz/string.h>

#include <cstdio>

static_assert(__cplusplus < 201402L, "the package asks for a later C++ than its headers need");

int main() {
  ZCStringArray words;
  words.Add("house");
  ZCString word = words.GetAt(0) + "s";
  if (!(word == "houses")) return 1;
  std::puts("the C++ client works");
  return 0;
}
