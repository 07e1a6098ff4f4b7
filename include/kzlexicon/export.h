// Marks what libkzlexicon exports.
#ifndef KZLEXICON_EXPORT_H
#define KZLEXICON_EXPORT_H

#define KZL_API __attribute__((visibility("default")))

#endif  // KZLEXICON_EXPORT_H
