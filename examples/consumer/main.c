/* A C program that includes only the C header and links the installed library. */
#include <nlpdate/nlpdate_c.h>
#include <stdio.h>

int main(void) {
  nlpdate_parser* parser = nlpdate_parser_new();
  if (parser == NULL) return 1;
  nlpdate_set_fixed_now(parser, 1709892000); /* 2024-03-08 10:00:00 UTC */
  char* json = NULL;
  if (nlpdate_parse(parser, "buy milk tomorrow at 9am", NULL, NLPDATE_JSON_STRICT, &json) != NLPDATE_OK) return 1;
  puts(json);
  nlpdate_free(json);
  printf("invalid UTF-8: status %d\n", (int)nlpdate_parse(parser, "\xff", NULL, NLPDATE_JSON_STRICT, &json));
  printf("null title: status %d\n", (int)nlpdate_parse(parser, NULL, NULL, NLPDATE_JSON_STRICT, &json));
  nlpdate_parser_free(parser);
  return 0;
}
