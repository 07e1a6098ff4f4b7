// KZ_API marks what the shared library exports; everything else is hidden.
#ifndef KZ_EXPORT_H
#define KZ_EXPORT_H

#define KZ_API __attribute__((visibility("default")))

#endif  // KZ_EXPORT_H
