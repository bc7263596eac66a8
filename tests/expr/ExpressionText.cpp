#include "ExpressionText.h"

namespace tessaryn {

namespace {

const char* const nodeName[30] = {
    "",    "",     "Expo", "Neg", "Mult", "Div", "Add",  "Subt",  "Ntuple", "Func",
    "EQ",  "LT",   "LE",   "GT",  "GE",   "Not", "And",  "Or",    "Imply",  "Iff",
    "All", "Some", "Elt",  "SUM", "PROD", "",    "Pred", "Inter", "Union",  "Complement"};

}  // namespace

std::string Tree(const Expression& expression) {
    std::vector<std::string> texts{""};  // by node; operands come first
    for (size_t i = 1; i < expression.nodes.size(); i++) {
        const ParseRec& node = expression.nodes[i];
        std::string text = nodeName[node.Rule] + node.Name;
        if (node.Ptr1 != 0) text += "(" + texts[node.Ptr1];
        if (node.Ptr2 != 0) text += "," + texts[node.Ptr2];
        if (node.Ptr1 != 0) text += ")";
        texts.push_back(text);
    }
    return expression.error.empty() ? texts.back() : "";
}

std::vector<std::string> TokenLines(const Expression& expression) {
    std::vector<std::string> lines;
    for (size_t i = 1; i < expression.tokens.size(); i++) {
        const TokenRec& token = expression.tokens[i];
        lines.push_back(token.Token + " " + std::to_string(token.Position) + " " +
                        std::to_string(token.TPtr) + " " + std::to_string(token.DPtr) +
                        (token.Bound ? " bound" : ""));
    }
    return lines;
}

}  // namespace tessaryn
