#include "expr/Lex.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "expr/Kind.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

enum CharClass : unsigned char { Illegal, LowerStart, UpperStart, Single, Compound, White };

constexpr std::array<CharClass, 256> ClassifyAll() {
    std::array<CharClass, 256> classes{};
    const auto put = [&classes](std::string_view characters, CharClass to) {
        for (const char c : characters) classes[static_cast<unsigned char>(c)] = to;
    };
    put("0123456789abcdefghijklmnopqrstuvwxyz", LowerStart);
    put("ABCDEFGHIJKLMNOPQRSTUVWXYZ", UpperStart);
    put("()[]+-*/^_,~`:@", Single);
    put("=<>&|", Compound);
    put(" \t\n\r", White);
    return classes;
}

constexpr std::array<CharClass, 256> classOf = ClassifyAll();

CharClass ClassOf(char c) {
    return classOf[static_cast<unsigned char>(c)];
}

bool ContinuesName(char c, CharClass start) {
    const CharClass its = ClassOf(c);
    return its == LowerStart || its == UpperStart || c == '\'' || (c == '#' && start == LowerStart);
}

std::string_view NormalForm(std::string_view name) {
    if (name == "all" || name == "All") return "ALL";
    if (name == "exist" || name == "Exist") return "EXIST";
    return name;
}

// The longest sign at the head of rest, which begins with one of "=<>&|".
size_t CompoundLength(std::string_view rest) {
    if (rest.starts_with("<=>")) return 3;
    for (const std::string_view sign : {"=>", "<=", ">=", "&&", "||"})
        if (rest.starts_with(sign)) return 2;
    return 1;
}

// As TokenLength, for a text whose first character is of that class; of white space 1.
size_t LengthOf(std::string_view text, CharClass start) {
    size_t length = 1;
    if (start == LowerStart || start == UpperStart) {
        while (length < text.size() && ContinuesName(text[length], start)) length++;
    } else if (start == Compound) {
        length = CompoundLength(text);
    }
    return length;
}

// Calls take with the 0-based place and the length of each token; gives the 0-based place of an
// illegal character, npos if there is none.
template <class Take>
size_t ForEachToken(std::string_view source, Take take) {
    size_t i = 0;
    while (i < source.size()) {
        const CharClass start = ClassOf(source[i]);
        if (start == Illegal) return i;
        const size_t length = LengthOf(source.substr(i), start);
        if (start != White) take(i, length);
        i += length;
    }
    return source.npos;
}

// Appends the tokens of source; returns the 0-based place of an illegal character, npos if none.
size_t ReadTokens(std::string_view source, TokenList& tokens) {
    return ForEachToken(source, [&](size_t at, size_t length) {
        tokens.emplace_back(NormalForm(source.substr(at, length)), static_cast<int>(at) + 1);
    });
}

// Links each bracket with its partner of the same kind; false if one has none. While a bracket is
// open its TPtr holds the open one of its kind around it.
bool LinkBrackets(TokenList& tokens) {
    int openRound = 0;
    int openSquare = 0;
    bool matched = true;
    for (int k = 1; k < std::ssize(tokens); k++) {
        const TokenRec& token = tokens[k];
        if (!IsBracket(token)) continue;
        const bool round = token.Token[0] == '(' || token.Token[0] == ')';
        int& open = round ? openRound : openSquare;
        if (IsOpening(token)) {
            tokens[k].TPtr = std::exchange(open, k);
        } else if (open != 0) {
            tokens[k].TPtr = open;
            open = std::exchange(tokens[open].TPtr, k);
        } else {
            matched = false;
        }
    }
    for (int open : {openRound, openSquare}) {
        matched = matched && open == 0;
        while (open != 0) open = std::exchange(tokens[open].TPtr, 0);
    }
    return matched;
}

}  // namespace

void Lex(Expression& expression) {
    auto& [source, tokens, nodes, error, errorPos] = expression;
    tokens.assign(1, {});
    tokens.reserve(std::min<size_t>(source.size(), MaxSourceLength) / 2 + 2);
    error.clear();
    errorPos = 0;
    if (source.find_first_not_of(' ') == source.npos) {
        error = "17. No expression found.";
        return;
    }
    const size_t illegal = ReadTokens(source, tokens);
    if (illegal != source.npos) {
        const int length = SequenceLength(source, static_cast<int>(illegal));
        error = "18. Illegal character " + source.substr(illegal, static_cast<size_t>(length));
        errorPos = static_cast<int>(illegal) + 1;
        return;
    }
    if (tokens.size() == 1) {
        error = "19. Expecting expression";
        return;
    }
    if (LinkBrackets(tokens)) return;
    const auto lonely = std::find_if(tokens.begin() + 1, tokens.end(), [](const TokenRec& token) {
        return IsBracket(token) && token.TPtr == 0;
    });
    error = "20. Unmatched bracket(s)";
    errorPos = lonely->Position;
}

size_t TokenLength(std::string_view text) {
    const CharClass start = text.empty() ? White : ClassOf(text[0]);
    return start == White || start == Illegal ? 0 : LengthOf(text, start);
}

bool Lexes(std::string_view text) {
    bool any = false;
    bool closedTooSoon = false;
    int open[2] = {};  // round, square
    const size_t illegal = ForEachToken(text, [&](size_t at, size_t) {
        const char sign = text[at];
        any = true;
        if (sign == '(' || sign == '[') ++open[sign == '['];
        if (sign == ')' || sign == ']') closedTooSoon |= --open[sign == ']'] < 0;
    });
    return any && illegal == text.npos && !closedTooSoon && open[0] == 0 && open[1] == 0;
}

Expression LexExpression(std::string text) {
    Expression result;
    result.text = std::move(text);
    Lex(result);
    return result;
}

}  // namespace tessaryn
