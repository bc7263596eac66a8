#include "output/LaTeX.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

#include "document/Document.h"
#include "expr/Lex.h"
#include "output/LaTeXPreamble.h"
#include "platform/Files.h"
#include "text/Encoding.h"
#include "text/Utf8.h"

namespace tessaryn {
namespace {

constexpr int MostBars = 40;           // blocks that lie deeper have no more
constexpr int LongestPiece = 20;       // characters without a place where a line may end
constexpr std::size_t OnOneLine = 60;  // bytes of a statement that needs no such place
constexpr std::size_t LongestExponent = 20;

constexpr std::string_view LineEnd = "\r\n";

// --- words

void AppendControl(std::string& tex, char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<unsigned char>(c);
    tex += "[U+00";
    tex += digits[code >> 4];
    tex += digits[code & 15];
    tex += ']';
}

// One character of ASCII as text; last: the one ahead of it.
void AppendCharacter(std::string& tex, char c, char last) {
    constexpr std::pair<char, std::string_view> signs[] = {{'\\', "\\textbackslash{}"},
                                                           {'{', "\\{"},
                                                           {'}', "\\}"},
                                                           {'$', "\\$"},
                                                           {'&', "\\&"},
                                                           {'#', "\\#"},
                                                           {'^', "\\textasciicircum{}"},
                                                           {'_', "\\_"},
                                                           {'~', "\\textasciitilde{}"},
                                                           {'%', "\\%"},
                                                           {'@', "\\(\\in\\)"},
                                                           {'<', "\\textless{}"},
                                                           {'>', "\\textgreater{}"},
                                                           {'|', "\\textbar{}"},
                                                           {'`', "{}`"},
                                                           {'\t', " "}};
    const auto* known = std::find_if(std::begin(signs), std::end(signs),
                                     [c](const auto& sign) { return sign.first == c; });
    if (known != std::end(signs)) {
        tex += known->second;
    } else if (c < ' ' || c == '\x7F') {
        AppendControl(tex, c);
    } else {
        // Two of these would melt into one sign.
        if (c == last && (c == '-' || c == '\'' || c == ',')) tex += "{}";
        tex += c;
    }
}

// Characters that a plain LaTeX may write for the one at a place: some stand as their numbers.
int WidthOf(std::string_view text, std::size_t at) {
    constexpr int ofNumber = 8;
    const char32_t code = DecodeAt(text, at).code;
    return code < ' ' || code == 0x7F || code > 0x24F ? ofNumber : 1;
}

// One line of text. Blanks at its head stay; a long word may be broken.
void AppendText(std::string& tex, std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
    for (std::size_t i = 0; i < first; ++i) tex += "~";
    int piece = 0;
    for (std::size_t at = first; at < text.size();) {
        const char c = text[at];
        const int length = SequenceLength(text, static_cast<int>(at));
        piece = c == ' ' ? 0 : piece + WidthOf(text, at);
        if (piece > LongestPiece) {
            tex += "\\bk{}";
            piece = 0;
        }
        if (static_cast<unsigned char>(c) < 0x80) {
            AppendCharacter(tex, c, at > first ? text[at - 1] : '\0');
        } else {
            tex += text.substr(at, static_cast<std::size_t>(length));
        }
        at += static_cast<std::size_t>(length);
    }
}

// Calls take with each line of a text.
template <class Take>
void ForEachLine(std::string_view text, Take take) {
    while (true) {
        const std::size_t end = std::min(text.find(LineEnd), text.size());
        take(text.substr(0, end));
        if (end == text.size()) return;
        text.remove_prefix(end + LineEnd.size());
    }
}

// --- formulas

// The name at the head of a text; "" if there is none.
std::string_view NameAt(std::string_view text) {
    if (text.empty() || std::isalnum(static_cast<unsigned char>(text[0])) == 0) return {};
    return text.substr(0, TokenLength(text));
}

// Bytes of the exponent at the head of a text, if none can mistake it when it is set high: a name,
// or a short term in brackets that has none within. Else 0.
std::size_t ExponentLength(std::string_view text) {
    std::size_t length = NameAt(text).size();
    if (text.starts_with('(')) {
        length = std::min(text.find_first_of("(^)", 1), text.size() - 1) + 1;
        if (text[length - 1] != ')') return 0;
    }
    const bool goesOn = length < text.size() && (text[length] == '(' || text[length] == '^');
    return length > LongestExponent || goesOn ? 0 : length;
}

bool PowersCanBeSetHigh(std::string_view text) {
    for (std::size_t at = text.find('^'); at != text.npos; at = text.find('^', at + 1)) {
        if (ExponentLength(text.substr(at + 1)) == 0) return false;
    }
    return true;
}

// Writes the formula of a statement sign by sign. What is no sign of the language stands as text.
class Formula {
  public:
    Formula(std::string& tex, std::string_view text)
        : tex_(tex),
          rest_(text),
          isLong_(text.size() > OnOneLine),
          high_(PowersCanBeSetHigh(text)) {
        while (!rest_.empty()) WriteNext();
    }

  private:
    std::string_view Take(std::size_t length) {
        const std::string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return taken;
    }

    void WriteNext() {
        const std::size_t length = TokenLength(rest_);
        if (length > 0) return WriteToken(Take(length));
        const char c = rest_[0];
        const auto bytes = static_cast<std::size_t>(SequenceLength(rest_, 0));
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            Take(1);
            return;
        }
        tex_ += "\\mbox{";
        AppendText(tex_, Take(bytes));
        tex_ += isLong_ ? "}\\bk " : "}";
    }

    void WriteToken(std::string_view token) {
        constexpr std::pair<std::string_view, std::string_view> signs[] = {
            {"&", "\\AND "},  {"|", "\\OR "},        {"=>", "\\IMPLIES "}, {"<=>", "\\IFF "},
            {"~", "\\lnot "}, {"@", "\\in "},        {"<=", "\\leq "},     {">=", "\\geq "},
            {"*", "\\cdot "}, {"_", "{-}"},          {"^", "\\caret "},    {"&&", "\\cap "},
            {"||", "\\cup "}, {"`", "\\backprime "}, {"ALL", "\\forall "}, {"EXIST", "\\exists "}};
        if (WriteQuantifier(token) || WriteExponent(token)) return;
        const auto* known = std::find_if(std::begin(signs), std::end(signs),
                                         [token](const auto& sign) { return sign.first == token; });
        if (known != std::end(signs)) {
            tex_ += known->second;
        } else if (!NameAt(token).empty()) {
            WriteName(token);
        } else {
            tex_ += token;
        }
        if (isLong_ && (token == "(" || token == "," || token == "~")) tex_ += "\\bk ";
    }

    bool WriteQuantifier(std::string_view token) {
        if ((token != "ALL" && token != "EXIST") || !rest_.starts_with('(')) return false;
        const std::string_view name = NameAt(rest_.substr(1));
        if (name.empty() || !rest_.substr(name.size() + 1).starts_with("):")) return false;
        tex_ += token == "ALL" ? "\\ALL{" : "\\EXIST{";
        WriteName(name);
        tex_ += '}';
        Take(name.size() + 3);
        return true;
    }

    bool WriteExponent(std::string_view token) {
        if (token != "^" || !high_) return false;
        std::string_view exponent = Take(ExponentLength(rest_));
        if (exponent.starts_with('(')) exponent = exponent.substr(1, exponent.size() - 2);
        tex_ += "^{";
        Formula(tex_, exponent);
        tex_ += '}';
        return true;
    }

    // Letters and digits in one font if there are several, each prime behind them.
    void WriteName(std::string_view name) {
        while (!name.empty()) {
            const std::string_view piece = name.substr(0, LongestPiece);
            const std::size_t letters = std::min(piece.find_first_of("'#"), piece.size());
            const std::size_t length = std::max<std::size_t>(letters, 1);
            const bool digits = piece.find_first_not_of("0123456789") >= length;
            if (letters == 0) {
                tex_ += piece[0] == '#' ? "\\#" : "'";
            } else if (letters == 1 || digits) {
                tex_ += piece.substr(0, letters);
            } else {
                tex_ += "\\mathit{";
                tex_ += piece.substr(0, letters);
                tex_ += '}';
            }
            name.remove_prefix(length);
            if (name.size() >= LongestPiece) tex_ += "\\bk ";
        }
    }

    std::string& tex_;
    std::string_view rest_;
    bool isLong_;
    bool high_;  // powers are set high in all of the statement, or nowhere
};

// --- the document

void AppendLines(std::string& tex, int bars, std::string_view text) {
    ForEachLine(text, [&](std::string_view line) {
        tex += "\\prooftext{" + std::to_string(bars) + "}{";
        AppendText(tex, line);
        tex += "}\n";
    });
}

int BarsOf(const Statement& stmt) {
    return std::clamp(Depth(stmt), 0, MostBars);
}

void AppendStatement(std::string& tex, int number) {
    const Statement& stmt = StmtTable[number];
    const int bars = BarsOf(stmt);
    if (stmt.EndUserComment > 0) {
        std::string comment(ProofSlice(stmt.StartLine, stmt.EndUserComment));
        RemoveTabs(comment);
        AppendLines(tex, bars, comment);
    }
    tex += "\\proofline{" + std::to_string(bars) + "}{" + std::to_string(number) + "}{";
    const char* between = "\\(";
    ForEachLine(StoredText(number), [&](std::string_view line) {
        tex += between;
        Formula(tex, line);
        between = "\\)\\par\\(";
    });
    tex += "\\)}{";
    const int triangle = IsConclusion(stmt) ? 2 : 0;  // it and its blank
    AppendText(tex, ProofSlice(stmt.StartRule + triangle, stmt.EndRule));
    tex += "}\n";
}

void AppendHead(std::string& tex) {
    int most = 1;
    for (int line = 1; line <= StmtCount; ++line) most = std::max(most, BarsOf(StmtTable[line]));
    tex += LaTeXPreamble;
    tex += "\\begin{document}\n\\blockindent" +
           (most <= 14 ? std::string("1em") : "\\dimexpr.4\\textwidth/" + std::to_string(most)) +
           "\n\\settowidth\\numberwidth{" + std::to_string(StmtCount) + "\\quad}\n";
    if (!ProofCaption.empty()) {
        tex += "\\proofcaption{";
        AppendText(tex, ProofCaption);
        tex += "}\n";
    }
    if (IntroEnd > 0) {
        tex += "\\begin{introduction}\n";
        AppendLines(tex, 0, ProofSlice(1, IntroEnd));
        tex += "\\end{introduction}\n";
    }
}

}  // namespace

std::string LaTeXDocument() {
    std::string tex;
    tex.reserve(ProofText.size() * 2 + static_cast<std::size_t>(StmtCount) * 40);
    AppendHead(tex);
    for (int line = 1; line <= StmtCount; ++line) AppendStatement(tex, line);
    if (ProofText.empty() && ProofCaption.empty()) tex += "\\null  % else there is no page\n";
    tex += "\\end{document}\n";
    return ToUtf8(std::move(tex));
}

std::string SaveLaTeX(const std::string& path) {
    return ReplaceFile(path, LaTeXDocument());
}

}  // namespace tessaryn
