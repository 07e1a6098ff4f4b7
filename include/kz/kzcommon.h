/* The whole interface of the library.
 *
 * C programs get the plain functions, C++ programs the classes too. Each family has a header of its
 * own, which begins with what it is for; include that one where it is enough.
 *
 *   puts(kz_locl_language("enru"));  // Output: EN
 */
#ifndef KZ_KZCOMMON_H
#define KZ_KZCOMMON_H

#include "kz/charclass.h"
#include "kz/codepage.h"
#include "kz/compare.h"
#include "kz/dic_array.h"
#include "kz/dic_error.h"
#include "kz/dic_header.h"
#include "kz/dic_index.h"
#include "kz/dic_iterator.h"
#include "kz/dic_queue.h"
#include "kz/dic_set.h"
#include "kz/dictionary.h"
#include "kz/engine.h"
#include "kz/entry.h"
#include "kz/entry_convert.h"
#include "kz/entry_text.h"
#include "kz/export.h"
#include "kz/gram_attr.h"
#include "kz/gram_codec.h"
#include "kz/gram_map.h"
#include "kz/gram_record.h"
#include "kz/language.h"
#include "kz/platform.h"
#include "kz/queue.h"
#include "kz/replace_buffer.h"
#include "kz/special.h"
#include "kz/strutil.h"
#include "kz/translit.h"
#include "kz/types.h"

#ifdef __cplusplus
#include "kz/array.h"
#include "kz/file.h"
#include "kz/front_coding.h"
#include "kz/inflection.h"
#include "kz/lexer.h"
#include "kz/list_file.h"
#include "kz/map.h"
#include "kz/object.h"
#include "kz/string.h"
#include "kz/time.h"
#endif

#endif /* KZ_KZCOMMON_H */
