#include "RandomText.h"

#include <array>
#include <initializer_list>
#include <string_view>

namespace tessaryn {

namespace {

size_t Below(Random& random, size_t limit) {
    return random() % limit;
}

template <size_t Size>
const char* OneOf(Random& random, const std::array<const char*, Size>& texts) {
    return texts[Below(random, Size)];
}

std::string Name(Random& random) {
    return OneOf<9>(random, {"x", "y", "z", "a", "f", "x'", "1", "2x", "n0"});
}

std::string Capital(Random& random) {
    return OneOf<5>(random, {"P", "Q", "R'", "SUM", "PROD"});
}

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

std::string Spaced(Random& random, std::string_view sign) {
    const auto space = [&] { return OneOf<5>(random, {"", "", " ", "\r\n", "\r\n\t"}); };
    return Join({space(), sign, space()});
}

std::string Bracketed(Random& random, std::string_view text) {
    return Below(random, 2) == 0 ? Join({"(", text, ")"}) : Join({"[", text, "]"});
}

std::string RandomTerm(Random& random, int depth) {
    if (depth <= 0 || Below(random, 3) == 0) return Name(random);
    const auto term = [&] { return RandomTerm(random, depth - 1); };
    switch (Below(random, 5)) {
        case 0:
            return Join({Name(random), "(", term(), ")"});
        case 1:
            return Join({Name(random), "(", term(), ",", term(), ")"});
        case 2:
            return Join({"_", Bracketed(random, term())});
        case 3:
            return Bracketed(random, term());
        default: {
            const char* sign = OneOf<5>(random, {"+", "-", "*", "/", "^"});
            return Join({term(), Spaced(random, sign), term()});
        }
    }
}

}  // namespace

std::string RandomFormula(Random& random, int depth) {
    const auto formula = [&] { return RandomFormula(random, depth - 1); };
    const auto term = [&] { return RandomTerm(random, depth - 1); };
    if (depth <= 0) return Join({Capital(random), "(", Name(random), ")"});
    switch (Below(random, 8)) {
        case 0:
            return Capital(random);
        case 1: {
            const char* sign = OneOf<6>(random, {"=", "<", ">", "<=", ">=", "@"});
            return Join({term(), Spaced(random, sign), term()});
        }
        case 2:
            return Join({"(", term(), ",", term(), ")@", term()});
        case 3:
            return Join({"~", formula()});
        case 4: {
            const char* quantifier = OneOf<4>(random, {"ALL", "all", "EXIST", "exist"});
            const std::string variable = Bracketed(random, Name(random));
            return Join({quantifier, variable, ":", Bracketed(random, formula())});
        }
        case 5:
            return Bracketed(random, formula());
        default: {
            const char* sign = OneOf<4>(random, {"&", "|", "=>", "<=>"});
            return Join({formula(), Spaced(random, sign), formula()});
        }
    }
}

std::string RandomTokens(Random& random, int length) {
    std::string text;
    for (size_t count = Below(random, static_cast<size_t>(length)) + 1; count > 0; count--) {
        text +=
            OneOf<64>(random, {"x",         "y",  "f",    "x",   "P",       "Q",     "(",    ")",
                               "(",         ")",  "(",    ")",   "(",       ")",     "[",    "]",
                               "[",         "]",  "(",    ")",   "ALL",     "EXIST", "ALL",  ":",
                               "(x):",      "~",  "_",    "+",   "-",       "*",     "/",    "^",
                               ",",         "=",  "<",    ">",   "<=",      ">=",    "@",    "&",
                               "|",         "=>", "<=>",  "&&",  "||",      "`",     "SUM",  "PROD",
                               ":",         ":",  "P(x)", "x@y", "ALL(x):", "(x)",   "(P)",  "[P]",
                               "EXIST[y]:", "\n", " ",    "x",   "y",       "P",     "ALL(", "]:"});
        if (Below(random, 3) == 0) text += ' ';
    }
    return text;
}

std::string Mutated(Random& random, std::string text) {
    for (size_t count = Below(random, 4); count > 0 && !text.empty(); count--) {
        const size_t at = Below(random, text.size());
        const size_t length = Below(random, 4);
        switch (Below(random, 3)) {
            case 0:
                text.erase(at, length);
                break;
            case 1:
                text.insert(Below(random, text.size()), text.substr(at, length));
                break;
            default:
                text.replace(at, length, RandomTokens(random, 2));
        }
    }
    return text;
}

}  // namespace tessaryn
