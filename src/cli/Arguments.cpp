#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>

#include "cli/Script.h"

namespace tessaryn {

namespace {

constexpr std::string_view Blanks = " \t";

// Bytes of the string literal at the start of the text, its quotes included; 0 if it has no end.
std::size_t LiteralLength(std::string_view text) {
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] == '"') return at + 1;
        if (text[at] == '\\') ++at;
    }
    return 0;
}

}  // namespace

void Arguments::SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(Blanks), rest_.size()));
}

std::string_view Arguments::NextWord() const {
    return rest_.substr(0, std::min(rest_.find_first_of(Blanks), rest_.size()));
}

std::string Arguments::Word() {
    if (Empty()) throw ActionFailed{"a word is missing at the end of the line"};
    if (TextFollows()) throw ActionFailed{"expected a word, not a string"};
    std::string word(NextWord());
    rest_.remove_prefix(word.size());
    SkipBlanks();
    return word;
}

std::string Arguments::Text() {
    if (!TextFollows()) throw ActionFailed{"expected a string in double quotes"};
    const std::size_t length = LiteralLength(rest_);
    if (length == 0) throw ActionFailed{"the string has no closing quote"};
    const auto literal = nlohmann::json::parse(rest_.substr(0, length), nullptr, false);
    if (!literal.is_string()) throw ActionFailed{"the string is not written as JSON has it"};
    rest_.remove_prefix(length);
    if (!Empty() && Blanks.find(rest_.front()) == std::string_view::npos) {
        throw ActionFailed{"a blank is missing behind the string"};
    }
    SkipBlanks();
    return literal.get<std::string>();
}

std::string Arguments::Path() {
    std::string path = Text();
    // The system would take what stands ahead of it for the whole name.
    if (path.find('\0') != path.npos) throw ActionFailed{"no path can hold \\u0000"};
    return path;
}

int Arguments::Number() {
    const std::string word = Word();
    int number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end) throw ActionFailed{"expected a number, not " + word};
    return number;
}

bool Arguments::Take(std::string_view word) {
    if (NextWord() != word) return false;
    rest_.remove_prefix(word.size());
    SkipBlanks();
    return true;
}

void Arguments::End() const {
    if (!Empty()) throw ActionFailed{"nothing may follow here: " + std::string(rest_)};
}

std::string Quoted(const std::string& text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace tessaryn
