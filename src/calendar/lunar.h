// The lunar calendar for the parser's own use: the nlpdate:: records and
// conversions of the public header.
#pragma once

#include "nlpdate/lunar.h"
