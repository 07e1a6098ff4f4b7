// Conversions of characters and texts between code pages.
#include "kz/codepage.h"

#include "text/byte_map.h"
#include "text/conversions.h"

int _ruansitooem(int character) { return kz::ru_ansi_to_oem[character]; }
int _ruoemtoansi(int character) { return kz::ru_oem_to_ansi[character]; }
int _ansitooem(int character) { return kz::ansi_to_oem[character]; }
int _oemtoansi(int character) { return kz::oem_to_ansi[character]; }
int _ansitokoi8(int character) { return kz::ansi_to_koi8[character]; }
int _koi8toansi(int character) { return kz::koi8_to_ansi[character]; }
int _oemtokoi8(int character) { return kz::oem_to_koi8[character]; }
int _koi8tooem(int character) { return kz::koi8_to_oem[character]; }
int _ansitoiso(int character) { return kz::ansi_to_iso[character]; }
int _isotoansi(int character) { return kz::iso_to_ansi[character]; }
int _oemtoiso(int character) { return kz::oem_to_iso[character]; }
int _isotooem(int character) { return kz::iso_to_oem[character]; }
int _mactooem(int character) { return kz::mac_to_oem[character]; }
int _oemtomac(int character) { return kz::oem_to_mac[character]; }

char* strruansitooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::ru_ansi_to_oem);
}
char* strruoemtoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::ru_oem_to_ansi);
}
char* stransitooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::ansi_to_oem);
}
char* stroemtoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::oem_to_ansi);
}
char* stransitokoi8(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::ansi_to_koi8);
}
char* strkoi8toansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::koi8_to_ansi);
}
char* stroemtokoi8(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::oem_to_koi8);
}
char* strkoi8tooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::koi8_to_oem);
}
char* stransitoiso(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::ansi_to_iso);
}
char* strisotoansi(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::iso_to_ansi);
}
char* stroemtoiso(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::oem_to_iso);
}
char* strisotooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::iso_to_oem);
}
char* strmactooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::mac_to_oem);
}
char* strrumactooem(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::mac_to_oem);
}
char* stroemtomac(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::oem_to_mac);
}
char* strruoemtomac(const char* source, char* destination) {
  return kz::translate_text(source, destination, kz::oem_to_mac);
}
