// KZL_API marks what libkzlexicon exports; everything else is hidden.
//
//     KZL_API std::string part_name(std::string_view code);  // as in kzlexicon/entry.h
//     std::cout << kz::lexicon::part_name("A") << '\n';
//     // Output: adjective
#ifndef KZLEXICON_EXPORT_H
#define KZLEXICON_EXPORT_H

#define KZL_API __attribute__((visibility("default")))

#endif  // KZLEXICON_EXPORT_H
