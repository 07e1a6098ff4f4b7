// Conversions of characters and texts between code pages.
#include "kz/codepage.h"

#include "text/byte_map.h"
#include "text/conversions.h"

int _ruansitooem(int character) { return kz::kRuAnsiToOem[character]; }
int _ruoemtoansi(int character) { return kz::kRuOemToAnsi[character]; }
int _ansitooem(int character) { return kz::kAnsiToOem[character]; }
int _oemtoansi(int character) { return kz::kOemToAnsi[character]; }
int _ansitokoi8(int character) { return kz::kAnsiToKoi8[character]; }
int _koi8toansi(int character) { return kz::kKoi8ToAnsi[character]; }
int _oemtokoi8(int character) { return kz::kOemToKoi8[character]; }
int _koi8tooem(int character) { return kz::kKoi8ToOem[character]; }
int _ansitoiso(int character) { return kz::kAnsiToIso[character]; }
int _isotoansi(int character) { return kz::kIsoToAnsi[character]; }
int _oemtoiso(int character) { return kz::kOemToIso[character]; }
int _isotooem(int character) { return kz::kIsoToOem[character]; }
int _mactooem(int character) { return kz::kMacToOem[character]; }
int _oemtomac(int character) { return kz::kOemToMac[character]; }

char* strruansitooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kRuAnsiToOem);
}
char* strruoemtoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kRuOemToAnsi);
}
char* stransitooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kAnsiToOem);
}
char* stroemtoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kOemToAnsi);
}
char* stransitokoi8(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kAnsiToKoi8);
}
char* strkoi8toansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kKoi8ToAnsi);
}
char* stroemtokoi8(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kOemToKoi8);
}
char* strkoi8tooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kKoi8ToOem);
}
char* stransitoiso(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kAnsiToIso);
}
char* strisotoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kIsoToAnsi);
}
char* stroemtoiso(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kOemToIso);
}
char* strisotooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kIsoToOem);
}
char* strmactooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kMacToOem);
}
char* strrumactooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kMacToOem);
}
char* stroemtomac(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kOemToMac);
}
char* strruoemtomac(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::kOemToMac);
}
