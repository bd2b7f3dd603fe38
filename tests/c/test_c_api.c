/* The C interface used from C: a title parsed with a fixed now, settings,
   strict and raw text, and error codes instead of crashes for bad input. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "nlpdate/nlpdate_c.h"

static int failures = 0;
static int checks = 0;

static void expect_status(const char* what, nlpdate_status actual, nlpdate_status expected) {
  ++checks;
  if (actual != expected) {
    ++failures;
    fprintf(stderr, "FAIL %s: status %d, expected %d\n", what, (int)actual, (int)expected);
  }
}

static void expect_text(const char* what, const char* actual, const char* expected) {
  ++checks;
  if (actual == NULL || strcmp(actual, expected) != 0) {
    ++failures;
    fprintf(stderr, "FAIL %s:\n  got      %s\n  expected %s\n", what, actual ? actual : "(null)", expected);
  }
}

static void parse_and_expect(nlpdate_parser* p, const char* title, const char* base, nlpdate_json_mode mode,
                             const char* expected) {
  char* json = NULL;
  expect_status(title, nlpdate_parse(p, title, base, mode, &json), NLPDATE_OK);
  expect_text(title, json, expected);
  nlpdate_free(json);
}

int main(void) {
  nlpdate_parser* p = nlpdate_parser_new();
  if (p == NULL) return 1;
  expect_status("fixed now", nlpdate_set_fixed_now(p, 1709892000), NLPDATE_OK); /* 2024-03-08 10:00 UTC */

  parse_and_expect(p, "buy milk tomorrow at 9am", NULL, NLPDATE_JSON_STRICT,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at 9am\",\"tomorrow \"],\"startDate\":"
                   "\"2024-03-09T09:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}");
  parse_and_expect(p, "tomorrow\tat noon", NULL, NLPDATE_JSON_STRICT,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at noon\",\"tomorrow\\t\"],\"startDate\":"
                   "\"2024-03-09T12:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}");
  parse_and_expect(p, "tomorrow\tat noon", NULL, NLPDATE_JSON_RAW,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"at noon\",\"tomorrow\t\"],\"startDate\":"
                   "\"2024-03-09T12:00:00\",\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}");
  parse_and_expect(p, "call mom", "2024-06-01T08:00:00", NLPDATE_JSON_STRICT,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
                   "\"isAllDay\":true}");

  /* Settings. */
  expect_status("language", nlpdate_set_language(p, "zh_CN"), NLPDATE_OK);
  expect_status("first weekday", nlpdate_set_first_weekday(p, 2), NLPDATE_OK);
  expect_status("night", nlpdate_set_day_part(p, NLPDATE_NIGHT, 21, 30), NLPDATE_OK);
  parse_and_expect(p, "今晚开会", NULL, NLPDATE_JSON_STRICT,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[\"今晚\",\"今晚\"],\"startDate\":\"2024-03-08T21:30:00\","
                   "\"dueDate\":\"\",\"reminder\":[\"TRIGGER:-PT0S\"],\"isAllDay\":false}");
  expect_status("holidays", nlpdate_set_holidays(p, "{\"20240311\":2}"), NLPDATE_OK);
  expect_status("holidays off", nlpdate_set_holidays(p, NULL), NLPDATE_OK);
  expect_status("24 hour", nlpdate_set_24_hour(p, 0), NLPDATE_OK);
  expect_status("month first", nlpdate_set_month_first(p, 1), NLPDATE_OK);
  expect_status("japan holidays", nlpdate_set_japan_holidays(p, "{\"元日\":20240101}"), NLPDATE_OK);

  /* Errors: codes and messages, never a crash. */
  char* json = (char*)1;
  expect_status("null title", nlpdate_parse(p, NULL, NULL, NLPDATE_JSON_STRICT, &json), NLPDATE_NULL_ARGUMENT);
  ++checks;
  if (json != NULL) { ++failures; fprintf(stderr, "FAIL null title: json_out not cleared\n"); }
  expect_text("null title message", nlpdate_last_error(p), "title: NULL");
  expect_status("invalid utf-8", nlpdate_parse(p, "\xff\xfe broken", NULL, NLPDATE_JSON_STRICT, &json),
                NLPDATE_INVALID_UTF8);
  ++checks;
  if (strlen(nlpdate_last_error(p)) == 0) { ++failures; fprintf(stderr, "FAIL invalid utf-8: no message\n"); }
  expect_status("bad holidays", nlpdate_set_holidays(p, "{\"20240101\":}"), NLPDATE_BAD_HOLIDAYS);
  expect_status("bad base", nlpdate_parse(p, "明天", "tomorrow", NLPDATE_JSON_STRICT, &json), NLPDATE_BAD_ARGUMENT);
  expect_status("bad weekday", nlpdate_set_first_weekday(p, 9), NLPDATE_BAD_ARGUMENT);
  expect_status("bad hour", nlpdate_set_day_part(p, NLPDATE_MORNING, 24, 0), NLPDATE_BAD_ARGUMENT);
  expect_status("null out", nlpdate_parse(p, "x", NULL, NLPDATE_JSON_STRICT, NULL), NLPDATE_NULL_ARGUMENT);
  expect_status("null handle", nlpdate_parse(NULL, "x", NULL, NLPDATE_JSON_STRICT, &json), NLPDATE_NULL_ARGUMENT);
  expect_text("null handle message", nlpdate_last_error(NULL), "parser: NULL");
  expect_status("null language", nlpdate_set_language(p, NULL), NLPDATE_NULL_ARGUMENT);
  expect_status("bad language", nlpdate_set_language(p, "\xc3"), NLPDATE_INVALID_UTF8);
  /* After an error the handle still works. */
  expect_status("language back", nlpdate_set_language(p, "en"), NLPDATE_OK);
  parse_and_expect(p, "call mom", NULL, NLPDATE_JSON_RAW,
                   "{\"repeatFlag\":\"\",\"recognizeStrings\":[],\"startDate\":\"\",\"dueDate\":\"\",\"reminder\":[],"
                   "\"isAllDay\":true}");
  expect_text("no error after success", nlpdate_last_error(p), "");
  ++checks;
  if (strlen(nlpdate_version()) < 5) { ++failures; fprintf(stderr, "FAIL version\n"); }

  nlpdate_parser_free(p);
  nlpdate_parser_free(NULL);
  nlpdate_free(NULL);
  printf("%d passed, %d failed\n", checks - failures, failures);
  return failures == 0 ? 0 : 1;
}
