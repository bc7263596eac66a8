#include <gtest/gtest.h>

#include "expr/Parse.h"

namespace tessaryn {

TEST(Parse, Refusals) {
    const struct {
        const char* text;
        const char* error;
        int errorPos;
    } rows[] = {
        // characters and brackets
        {"X#", "18. Illegal character #", 2},
        {"P é", "18. Illegal character é", 3},
        {"𝔸", "18. Illegal character 𝔸", 1},
        {"\xe2\x82z", "18. Illegal character \xe2", 1},
        {"\xc0\x80", "18. Illegal character \xc0", 1},
        {"\xed\xa0\x80", "18. Illegal character \xed", 1},
        {"all(Exist", "20. Unmatched bracket(s)", 4},
        {"[(x)([y]", "20. Unmatched bracket(s)", 1},
        // no expression, or two
        {"   ", "17. No expression found.", 0},
        {" \t\r\n", "19. Expecting expression", 0},
        {"()", "24. Empty brackets. Expecting expression.", 1},
        {":", "26. Expecting expression.", 0},
        {"x y", "23. Expecting expression. May be a missing operator.", 0},
        {"x&&y", "23. Expecting expression. May be a missing operator.", 0},
        {"[x y]", "7. Expecting binary operator", 0},
        {"[`x]", "25. Expected algebraic expression", 0},
        // operands that are missing
        {"x+", "31. No expression on RHS of +", 2},
        {"+x", "29. No expression on LHS of +", 1},
        {"x^_y", "30. Invalid expression on RHS of ^", 2},
        {"(&P)", "28. Invalid expression on LHS of &", 2},
        {"P&~", "15. Expecting logical expression on RHS of ~", 3},
        {"[(~)]", "14. Expecting logical expression on RHS of ~", 3},
        {"P & (:)", "8. Expecting expression on both sides of &&", 3},
        {"_[:y]", "2. Expecting algebraic expression after _", 1},
        {"~[:y]", "22. Expecting logical expression after ~", 1},
        // an earlier pass speaks first, whatever stands to the left
        {"&x+", "31. No expression on RHS of +", 3},
        // types
        {"x=y=z", "11. Expecting algebraic expression before = ", 4},
        {"x|P", "11. Expecting logical expression before |", 2},
        {"x<y<=z", "10. Expecting algebracic expression before <=", 4},
        {"[a,b]@c", "10. Expecting algebraic expression before <epsilon>", 6},
        {"a,b@P", "12. Expecting algebraic expression after <epsilon>", 4},
        {"a,(b,c)", "12. Expecting algebraic expression after ,", 2},
        {"~x", "21. Expecting logicial expression after ~", 1},
        {"_P", "1. Expecting algebraic expression or n-tuple after _", 1},
        {"f(P)", "16. Expecting algebraic expression after f", 1},
        // quantifiers
        {"ALL(x)", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL(x):&", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL(x)&&P(x)", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL(x,y):P(x,y)", "5. Expecting variable", 1},
        {"P|ALL(x):x", "8. Expecting expression on both sides of |", 2},
        {"ALL((x)):P(x)", "3. Invalid expression on RHS of ALL", 1},
        {"ALL(x):ALL(x):P(x)", "4. Variable x already quantified within its scope.", 1},
        {"ALL(x):P(x) & Q(x)", "27. Inconsistent usage of variable x", 5},
    };
    for (const auto& row : rows) {
        const Expression parsed = ParseExpression(row.text);
        EXPECT_EQ(parsed.error, row.error) << row.text;
        EXPECT_EQ(parsed.errorPos, row.errorPos) << row.text;
    }
}

}  // namespace tessaryn
