/* Parses a title from C with a fixed "now", and shows an error code. */
#include <stdio.h>

#include "nlpdate/nlpdate_c.h"

int main(void) {
  nlpdate_parser* parser = nlpdate_parser_new();
  if (parser == NULL) return 1;
  nlpdate_set_language(parser, "en");
  nlpdate_set_first_weekday(parser, 2); /* weeks start on Monday */
  nlpdate_set_fixed_now(parser, 1709892000); /* 2024-03-08 10:00:00 UTC */
  char* json = NULL;
  if (nlpdate_parse(parser, "Lunch with Ann tomorrow at 1pm", NULL, NLPDATE_JSON_STRICT, &json) == NLPDATE_OK) {
    printf("%s\n", json);
    nlpdate_free(json);
  }
  if (nlpdate_parse(parser, "\xff broken", NULL, NLPDATE_JSON_STRICT, &json) != NLPDATE_OK) {
    printf("refused: %s\n", nlpdate_last_error(parser));
  }
  nlpdate_parser_free(parser);
  return 0;
}
