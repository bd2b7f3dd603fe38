#include <nlpdate/lunar.h>
#include <nlpdate/nlpdate.h>

#include <iostream>

int main() {
  nlpdate::NLPNativeParser parser;
  parser.setFixedNow(1709892000);  // 2024-03-08 10:00:00 UTC
  std::cout << parser.parse("call mom tomorrow") << "\n";
  return 0;
}
