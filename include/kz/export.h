/* KZ_API marks what the shared library exports; everything else is hidden.
 *
 *   KZ_API int16_t isvowel(int character);  // as in kz/compare.h
 *   printf("%d\n", isvowel('e'));  // Output: 2
 */
#ifndef KZ_EXPORT_H
#define KZ_EXPORT_H

#define KZ_API __attribute__((visibility("default")))

#endif /* KZ_EXPORT_H */
