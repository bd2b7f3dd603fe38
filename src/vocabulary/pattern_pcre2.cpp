// The PCRE2 engine: 32-bit code units (one per code point, as our wide
// strings hold them), JIT-compiled, with the options that make it read our
// ECMAScript patterns as the reference engine does: $ only at the very end,
// LF as the only newline, and no UTF or Unicode properties, so that \b \w \d
// \s and case folding stay ASCII.
#include <stdexcept>

#include "vocabulary/pattern_engine.h"

#ifdef NLPDATE_HAVE_PCRE2
#define PCRE2_CODE_UNIT_WIDTH 32
#include <pcre2.h>
#endif

namespace nlpdate {

std::wstring translateForPcre2(const std::wstring& text) {
  std::wstring out;
  bool inClass = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const wchar_t c = text[i];
    if (c == L'\\' && i + 1 < text.size()) {
      out += c;
      out += text[++i];
    } else if (c == L'[' && !inClass) {
      inClass = true;
      out += c;
      if (i + 1 < text.size() && text[i + 1] == L'^') out += text[++i];
      if (i + 1 < text.size() && text[i + 1] == L']') out += text[++i];  // a leading ] is literal
    } else if (c == L']' && inClass) {
      inClass = false;
      out += c;
    } else if (c == L'.' && !inClass) {
      out += L"[^\\n\\r\\x{2028}\\x{2029}]";
    } else {
      out += c;
    }
  }
  return out;
}

#ifdef NLPDATE_HAVE_PCRE2

namespace {

// Match data and a JIT stack of each thread, reused by every search of that thread.
class ThreadMatchState {
 public:
  ThreadMatchState() {
    context_ = pcre2_match_context_create(nullptr);
    stack_ = pcre2_jit_stack_create(64 * 1024, 8 * 1024 * 1024, nullptr);
    pcre2_jit_stack_assign(context_, nullptr, stack_);
  }
  ~ThreadMatchState() {
    pcre2_match_data_free(data_);
    pcre2_jit_stack_free(stack_);
    pcre2_match_context_free(context_);
  }
  ThreadMatchState(const ThreadMatchState&) = delete;
  ThreadMatchState& operator=(const ThreadMatchState&) = delete;

  pcre2_match_data* data(uint32_t pairs) {
    if (data_ == nullptr || capacity_ < pairs) {
      pcre2_match_data_free(data_);
      capacity_ = pairs < 64 ? 64 : pairs;
      data_ = pcre2_match_data_create(capacity_, nullptr);
      if (data_ == nullptr) throw std::bad_alloc();
    }
    return data_;
  }
  pcre2_match_context* context() const { return context_; }

 private:
  pcre2_match_data* data_ = nullptr;
  uint32_t capacity_ = 0;
  pcre2_match_context* context_ = nullptr;
  pcre2_jit_stack* stack_ = nullptr;
};

ThreadMatchState& threadState() {
  thread_local ThreadMatchState state;
  return state;
}

class Pcre2Pattern : public CompiledPattern {
 public:
  Pcre2Pattern(const std::wstring& text, PatternCase caseMode) : CompiledPattern(text, caseMode) {
    const std::wstring translated = translateForPcre2(text);
    pcre2_compile_context* context = pcre2_compile_context_create(nullptr);
    pcre2_set_newline(context, PCRE2_NEWLINE_LF);
    uint32_t options = PCRE2_DOLLAR_ENDONLY;
    if (caseMode == PatternCase::Insensitive) options |= PCRE2_CASELESS;
    int error = 0;
    PCRE2_SIZE offset = 0;
    code_ = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(translated.data()), translated.size(), options, &error,
                          &offset, context);
    pcre2_compile_context_free(context);
    if (code_ == nullptr) {
      PCRE2_UCHAR message[256];
      pcre2_get_error_message(error, message, 256);
      std::string text8;
      for (PCRE2_UCHAR* c = message; *c != 0; ++c) text8 += static_cast<char>(*c < 128 ? *c : '?');
      throw std::runtime_error("pattern refused at " + std::to_string(offset) + ": " + text8);
    }
    pcre2_jit_compile(code_, PCRE2_JIT_COMPLETE);  // without JIT the interpreter runs: same answers, slower
    uint32_t count = 0;
    pcre2_pattern_info(code_, PCRE2_INFO_CAPTURECOUNT, &count);
    groups_ = count;
  }
  ~Pcre2Pattern() override { pcre2_code_free(code_); }
  Pcre2Pattern(const Pcre2Pattern&) = delete;
  Pcre2Pattern& operator=(const Pcre2Pattern&) = delete;

  bool find(const std::wstring& subject, size_t from, bool anchoredNotEmpty, PatternMatch& match) const override {
    const uint32_t options = anchoredNotEmpty ? PCRE2_ANCHORED | PCRE2_NOTEMPTY_ATSTART : 0;
    return run(subject, from, options, match);
  }

  bool whole(const std::wstring& subject, PatternMatch& match) const override {
    return run(subject, 0, PCRE2_ANCHORED | PCRE2_ENDANCHORED, match);
  }

  size_t groupCount() const override { return groups_; }

 private:
  bool run(const std::wstring& subject, size_t from, uint32_t options, PatternMatch& match) const {
    match.reset(&subject, 0);
    if (from > subject.size()) return false;
    ThreadMatchState& state = threadState();
    pcre2_match_data* data = state.data(static_cast<uint32_t>(groups_ + 1));
    const int rc = pcre2_match(code_, reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(), from, options,
                               data, state.context());
    if (rc == PCRE2_ERROR_NOMATCH) return false;
    if (rc < 0) throw std::runtime_error("pattern search failed: error " + std::to_string(rc));
    const PCRE2_SIZE* ovector = pcre2_get_ovector_pointer(data);
    match.reset(&subject, groups_ + 1);
    for (size_t i = 0; i <= groups_ && i < static_cast<size_t>(rc); ++i) {
      if (ovector[2 * i] == PCRE2_UNSET) continue;  // a group that did not take part reads as ""
      match.setGroup(i, static_cast<long>(ovector[2 * i]), static_cast<long>(ovector[2 * i + 1]));
    }
    return true;
  }

  pcre2_code* code_ = nullptr;
  size_t groups_ = 0;
};

}  // namespace

std::shared_ptr<const CompiledPattern> compilePcre2(const std::wstring& text, PatternCase caseMode) {
  return std::make_shared<const Pcre2Pattern>(text, caseMode);
}

bool hasPcre2Engine() { return true; }

#else

std::shared_ptr<const CompiledPattern> compilePcre2(const std::wstring& text, PatternCase caseMode) {
  return compileReference(text, caseMode);  // this build has no PCRE2
}

bool hasPcre2Engine() { return false; }

#endif

PatternEngine defaultPatternEngine() {
#if defined(NLPDATE_HAVE_PCRE2) && !defined(NLPDATE_REFERENCE_ENGINE)
  return PatternEngine::Pcre2;
#else
  return PatternEngine::Reference;
#endif
}

Pattern compileWithEngine(PatternEngine engine, const std::wstring& text, PatternCase caseMode) {
  return Pattern(engine == PatternEngine::Pcre2 ? compilePcre2(text, caseMode) : compileReference(text, caseMode));
}

}  // namespace nlpdate
