#include <gtest/gtest.h>

#include "expr/Lex.h"

namespace tessaryn {

namespace {

// The tokens as "text@position", separated by blanks; after a failure the message and its position.
std::string Lexed(const std::string& source) {
    TokenList tokens;
    std::string error;
    int errorPos = -1;
    Lex(source, tokens, error, errorPos);
    if (!error.empty()) return error + " at " + std::to_string(errorPos);
    std::string line;
    for (size_t i = 1; i < tokens.size(); i++)
        line += (i > 1 ? " " : "") + tokens[i].Token + "@" + std::to_string(tokens[i].Position);
    return line;
}

}  // namespace

TEST(Lex, Tokens) {
    const std::pair<std::string, std::string> rows[] = {
        // names and keywords
        {"all(Exist", "20. Unmatched bracket(s) at 4"},
        {"all Exist exist All ALL", "ALL@1 EXIST@5 EXIST@11 ALL@17 ALL@21"},
        {"aLL ALl alls all' EXISTS", "aLL@1 ALl@5 alls@9 all'@14 EXISTS@19"},
        {"x'#1 2x P'1 f#2", "x'#1@1 2x@6 P'1@9 f#2@13"},
        {"X#", "18. Illegal character # at 2"},
        {"x '", "18. Illegal character ' at 3"},
        // signs
        {"<=>x", "<=>@1 x@4"},
        {"< => =< <= > >=>", "<@1 =>@3 =@6 <@7 <=@9 >@12 >=@14 >@16"},
        {"x&&y&z|||`", "x@1 &&@2 y@4 &@5 z@6 ||@7 |@9 `@10"},
        {"P\r\n\t& Q", "P@1 &@5 Q@7"},
        // characters that are none
        {"1.5", "18. Illegal character . at 2"},
        {"P \xc3\xa9", "18. Illegal character \xc3\xa9 at 3"},
        {"\xf0\x9d\x94\xb8", "18. Illegal character \xf0\x9d\x94\xb8 at 1"},
        {"\xe2\x82z", "18. Illegal character \xe2 at 1"},
        {"\xc0\x80", "18. Illegal character \xc0 at 1"},
        {"\xed\xa0\x80", "18. Illegal character \xed at 1"},
        {std::string("\0", 1), std::string("18. Illegal character \0 at 1", 28)},
        // nothing, and brackets
        {"", "17. No expression found. at 0"},
        {"   ", "17. No expression found. at 0"},
        {" \t\r\n", "19. Expecting expression at 0"},
        {"( ]", "20. Unmatched bracket(s) at 1"},
        {"())[", "20. Unmatched bracket(s) at 3"},
        {"[(x)([y]", "20. Unmatched bracket(s) at 1"},
        {"([)]", "(@1 [@2 )@3 ]@4"},
    };
    for (const auto& [source, expected] : rows) EXPECT_EQ(Lexed(source), expected) << source;
}

}  // namespace tessaryn
