#include "cli/ExpressionTables.h"

#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "text/Encoding.h"

namespace tessaryn {

namespace {

using Json = nlohmann::ordered_json;

Json TokensAsJson(const TokenList& tokens) {
    Json rows = Json::array();
    for (std::size_t i = 1; i < tokens.size(); ++i) {
        const TokenRec& token = tokens[i];
        rows.push_back({token.Token, token.Position, token.TPtr, token.DPtr, token.Bound});
    }
    return rows;
}

Json NodesAsJson(const NodeList& nodes) {
    Json rows = Json::array();
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const ParseRec& node = nodes[i];
        rows.push_back({node.Rule, node.Name, node.Ptr1, node.Ptr2});
    }
    return rows;
}

std::string ParseAsJson(const std::string& text) {
    const Expression expression = ParseExpression(text);
    Json object = {{"error", ToUtf8(expression.error)}, {"errorPos", expression.errorPos}};
    if (expression.error.empty()) {
        object["tokens"] = TokensAsJson(expression.tokens);
        object["nodes"] = NodesAsJson(expression.nodes);
        object["canonical"] = PrintExpression(expression);
        object["freeVars"] = FreeVarsOf(expression);
    }
    return object.dump();
}

bool IsPair(const Json& value) {
    return value.is_array() && value.size() == 2 && value[0].is_string() && value[1].is_string();
}

// answer: gives the output line for a line's value, false if that has the wrong shape.
using Answerer = std::function<bool(const Json& value, std::string& line)>;

constexpr std::size_t MaxLine = 1U << 22;  // far beyond any expression

// False at the end. A line that is too long comes in part, and is no JSON any more.
bool NextLine(std::istream& in, std::string& line) {
    line.clear();
    using Traits = std::istream::traits_type;
    std::streambuf& source = *in.rdbuf();
    while (line.size() < MaxLine) {
        const auto character = source.sbumpc();
        if (Traits::eq_int_type(character, Traits::eof())) return !line.empty();
        if (character == '\n') return true;
        line += Traits::to_char_type(character);
    }
    return true;
}

int AnswerLines(std::istream& in, std::ostream& out, std::ostream& err, const char* shape,
                const Answerer& answer) {
    int number = 0;
    for (std::string line; NextLine(in, line);) {
        ++number;
        std::string reply;
        if (!answer(Json::parse(line, nullptr, false), reply)) {
            err << "stdin:" << number << ": the line is no " << shape << '\n';
            return 1;
        }
        out << reply << '\n';
    }
    return 0;
}

}  // namespace

int PrintParses(std::istream& in, std::ostream& out, std::ostream& err) {
    return AnswerLines(in, out, err, "JSON string", [](const Json& value, std::string& line) {
        if (!value.is_string()) return false;
        line = ParseAsJson(value.get<std::string>());
        return true;
    });
}

int PrintComparisons(std::istream& in, std::ostream& out, std::ostream& err) {
    return AnswerLines(
        in, out, err, "JSON array of two strings", [](const Json& value, std::string& line) {
            if (!IsPair(value)) return false;
            const bool same =
                SameExpressions(value[0].get<std::string>(), value[1].get<std::string>());
            line = same ? "true" : "false";
            return true;
        });
}

}  // namespace tessaryn
