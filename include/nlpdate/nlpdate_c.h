/* nlpdate for C and any language with a C foreign-function interface.
 *
 *   nlpdate_parser* p = nlpdate_parser_new();
 *   nlpdate_set_fixed_now(p, 1709892000);            // 2024-03-08 10:00:00 UTC
 *   char* json = NULL;
 *   if (nlpdate_parse(p, "buy milk tomorrow at 9am", NULL, NLPDATE_JSON_STRICT, &json) == NLPDATE_OK) {
 *     puts(json);
 *     nlpdate_free(json);
 *   } else {
 *     fprintf(stderr, "%s\n", nlpdate_last_error(p));
 *   }
 *   nlpdate_parser_free(p);
 *
 * Ownership: every text that a function hands out through a char** is newly
 * allocated and belongs to the caller, who releases it with nlpdate_free.
 * Texts handed in are only read during the call. nlpdate_last_error returns
 * a text owned by the handle, valid until the next call on that handle.
 *
 * Threads: a handle holds settings and the last error; use one handle per
 * thread, or guard a shared handle yourself. Different handles may parse on
 * different threads at the same time. No exception ever leaves a function
 * of this header.
 *
 * Time zone: dates are local times of the process's time zone (TZ).
 */
#ifndef NLPDATE_NLPDATE_C_H
#define NLPDATE_NLPDATE_C_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct nlpdate_parser nlpdate_parser;

/* Results of the functions below. */
typedef enum nlpdate_status {
  NLPDATE_OK = 0,
  NLPDATE_NULL_ARGUMENT = 1,  /* a required pointer was NULL */
  NLPDATE_INVALID_UTF8 = 2,   /* a title, language or holiday text is not UTF-8 */
  NLPDATE_BAD_HOLIDAYS = 3,   /* a holiday text has an entry without a number */
  NLPDATE_BAD_ARGUMENT = 4,   /* a number out of range, or a base date that does not read */
  NLPDATE_PARSE_FAILED = 5,   /* the parser failed on this title; *json_out is NULL */
  NLPDATE_OUT_OF_MEMORY = 6,
  NLPDATE_INTERNAL = 7
} nlpdate_status;

/* How nlpdate_parse writes its answer. */
typedef enum nlpdate_json_mode {
  /* The parser's own text, as the library's C++ parse gives it: recognised
     strings are not escaped, so a title with a quote or a tab can make it
     invalid JSON. */
  NLPDATE_JSON_RAW = 0,
  /* The same keys and values as strict JSON: quotes, backslashes, control
     characters, U+2028 and U+2029 escaped. Equal to the raw text for titles
     without such characters. */
  NLPDATE_JSON_STRICT = 1
} nlpdate_json_mode;

/* A new handle with the default settings: language "en", weeks from Sunday,
   24-hour clock, numeric dates in the locale's order, morning 9:00,
   afternoon 13:00, evening 17:00, night 20:00, no holiday tables, the system
   clock. NULL when out of memory. */
nlpdate_parser* nlpdate_parser_new(void);
/* Releases the handle; NULL is allowed. */
void nlpdate_parser_free(nlpdate_parser* parser);

/* Settings. Each returns NLPDATE_OK or an error status and leaves the
   setting as it was on error. */
nlpdate_status nlpdate_set_language(nlpdate_parser* parser, const char* language);
/* 1 = Sunday ... 7 = Saturday. */
nlpdate_status nlpdate_set_first_weekday(nlpdate_parser* parser, int weekday);
nlpdate_status nlpdate_set_24_hour(nlpdate_parser* parser, int is_24_hour);
/* 1: numeric dates read month first; 0: day first; -1: ask the locale. */
nlpdate_status nlpdate_set_month_first(nlpdate_parser* parser, int month_first);
/* The hour (0-23) and minute (0-59) that a day-part word stands for. */
typedef enum nlpdate_day_part {
  NLPDATE_MORNING = 0,
  NLPDATE_AFTERNOON = 1,
  NLPDATE_EVENING = 2,
  NLPDATE_NIGHT = 3
} nlpdate_day_part;
nlpdate_status nlpdate_set_day_part(nlpdate_parser* parser, nlpdate_day_part part, int hour, int minute);
/* The official holiday calendar, {"20240101":2,"20240204":1}, and the Japanese
   holidays, {"元日":20240101}; NULL removes the table. The text is checked
   here: a malformed one gives NLPDATE_BAD_HOLIDAYS. */
nlpdate_status nlpdate_set_holidays(nlpdate_parser* parser, const char* holidays_json);
nlpdate_status nlpdate_set_japan_holidays(nlpdate_parser* parser, const char* holidays_json);
/* Fixes "now" (seconds since the epoch); 0 returns to the system clock. */
nlpdate_status nlpdate_set_fixed_now(nlpdate_parser* parser, int64_t seconds_since_epoch);

/* Parses a UTF-8 title. base_date is NULL or a local time
   "YYYY-MM-DDTHH:MM:SS" that the title is relative to. On NLPDATE_OK,
   *json_out receives a new UTF-8 JSON text (free it with nlpdate_free); on
   any other status *json_out is NULL and nlpdate_last_error tells why. */
nlpdate_status nlpdate_parse(nlpdate_parser* parser, const char* title_utf8, const char* base_date,
                             nlpdate_json_mode mode, char** json_out);

/* The message of the last failed call on this handle, or "" after a
   success; never NULL (for a NULL handle a fixed text). */
const char* nlpdate_last_error(const nlpdate_parser* parser);

/* Releases a text that this library handed out; NULL is allowed. */
void nlpdate_free(char* text);

/* The library's version, "MAJOR.MINOR.PATCH". */
const char* nlpdate_version(void);

#ifdef __cplusplus
}
#endif

#endif /* NLPDATE_NLPDATE_C_H */
