#include "cli/ExpressionTables.h"

#include <functional>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/JsonWriter.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "text/Encoding.h"

namespace tessaryn {

namespace {

using Json = nlohmann::json;

void WriteParse(const std::string& text, std::ostream& out) {
    const Expression expression = ParseExpression(text);
    JsonWriter json(out);
    json.Object([&] {
        json.Member("error", ToUtf8(expression.error));
        json.Member("errorPos", expression.errorPos);
        if (!expression.error.empty()) return;
        json.Key("tokens");
        json.List([&] {
            for (std::size_t i = 1; i < expression.tokens.size(); ++i) {
                const TokenRec& token = expression.tokens[i];
                json.Row(token.Token, token.Position, token.TPtr, token.DPtr, token.Bound);
            }
        });
        json.Key("nodes");
        json.List([&] {
            for (std::size_t i = 1; i < expression.nodes.size(); ++i) {
                const ParseRec& node = expression.nodes[i];
                json.Row(node.Rule, node.Name, node.Ptr1, node.Ptr2);
            }
        });
        json.Member("canonical", PrintExpression(expression));
        json.Member("freeVars", FreeVarsOf(expression));
    });
}

bool IsPair(const Json& value) {
    return value.is_array() && value.size() == 2 && value[0].is_string() && value[1].is_string();
}

// Writes the answer to a line's value. False, with nothing written, if that has the wrong shape.
using Answerer = std::function<bool(const Json& value, std::ostream& out)>;

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
        if (!answer(Json::parse(line, nullptr, false), out)) {
            err << "stdin:" << number << ": the line is no " << shape << '\n';
            return 1;
        }
        out << '\n';
    }
    return 0;
}

}  // namespace

int PrintParses(std::istream& in, std::ostream& out, std::ostream& err) {
    return AnswerLines(in, out, err, "JSON string", [](const Json& value, std::ostream& to) {
        if (!value.is_string()) return false;
        WriteParse(value.get_ref<const std::string&>(), to);
        return true;
    });
}

int PrintComparisons(std::istream& in, std::ostream& out, std::ostream& err) {
    return AnswerLines(
        in, out, err, "JSON array of two strings", [](const Json& value, std::ostream& to) {
            if (!IsPair(value)) return false;
            const bool same = Same(value[0].get<std::string>(), value[1].get<std::string>());
            to << (same ? "true" : "false");
            return true;
        });
}

}  // namespace tessaryn
