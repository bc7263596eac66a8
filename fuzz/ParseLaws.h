// What holds for the parse of any text.
#pragma once

#include <string>
#include <vector>

#include "ReferenceParser.h"
#include "expr/Lex.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"

namespace tessaryn {

// Whether the bracket pairs lie inside or beside one another.
inline bool BracketsNest(const Expression& expression) {
    std::vector<int> open;
    for (int i = 1; i < static_cast<int>(expression.tokens.size()); i++) {
        const int partner = expression.tokens[static_cast<size_t>(i)].TPtr;
        if (partner > i) open.push_back(i);
        if (partner == 0 || partner > i) continue;
        if (open.empty() || open.back() != partner) return false;
        open.pop_back();
    }
    return open.empty();
}

// Whether the parse is what the definition gives, up to the length that it can be asked for.
inline bool IsAsDefined(const Expression& parsed) {
    constexpr size_t longest = 2000;
    if (parsed.text.size() > longest) return true;
    const Expression defined = ReferenceParse(parsed.text);
    if (parsed.error != defined.error || parsed.errorPos != defined.errorPos) return false;
    return !parsed.error.empty() ||
           (parsed.tokens == defined.tokens && parsed.nodes == defined.nodes);
}

// The first law that the text breaks, "" if none. It must be parsed as defined. A text that is
// refused must have its place within itself; one that parses, a print that is stable and is the
// same expression.
inline std::string BrokenLaw(const std::string& text) {
    const Expression parsed = ParseExpression(text);
    if (!IsAsDefined(parsed)) return "the parse is as defined";
    if (Lexes(text) != LexExpression(text).error.empty()) return "a text lexes one way only";
    if (parsed.errorPos < 0 || parsed.errorPos > static_cast<int>(text.size()))
        return "the place of a fault lies in the text";
    if (!parsed.error.empty()) return "";
    if (!BracketsNest(parsed)) return "brackets nest";
    const std::string printed = PrintExpression(parsed);
    const Expression again = ParseExpression(printed);
    if (again.error == UnableToParse) return "";  // its blanks took it beyond the limit
    if (again.nodes != parsed.nodes) return "the print has the same tree";
    if (PrintExpression(again) != printed) return "printing is stable";
    if (FreeVarsOf(again) != FreeVarsOf(parsed)) return "the print has the same free variables";
    // The place of the name that an applied SUM or PROD binds depends on the written brackets.
    if (text.find("SUM") != text.npos || text.find("PROD") != text.npos) return "";
    if (Same(printed, text) != Same(text, text)) return "the print is the same expression";
    return "";
}

}  // namespace tessaryn
