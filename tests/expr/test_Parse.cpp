#include <gtest/gtest.h>

#include "ExpressionText.h"
#include "expr/Parse.h"

namespace tessaryn {

TEST(Parse, Trees) {
    const std::pair<const char*, const char*> rows[] = {
        // leaves and brackets
        {"P", "P"},
        {"[((x))]", "x"},
        {"((((x))))+y", "Add(x,y)"},
        // grouping and strength
        {"a-b-c", "Subt(Subt(a,b),c)"},
        {"x^2^3", "Expo(Expo(x,2),3)"},
        {"P=>Q=>R", "Imply(Imply(P,Q),R)"},
        {"P|Q&R<=>S=>T", "Iff(Or(P,And(Q,R)),Imply(S,T))"},
        {"a+b*c/d^2", "Add(a,Div(Mult(b,c),Expo(d,2)))"},
        {"_x^2", "Neg(Expo(x,2))"},
        {"(_x)^2", "Expo(Neg(x),2)"},
        {"x*_y", "Mult(x,Neg(y))"},
        {"__x=y", "EQ(Neg(Neg(x)),y)"},
        {"~x=y", "Not(EQ(x,y))"},
        {"~~x@s+1", "Not(Not(Elt(x,Add(s,1))))"},
        {"x<y", "LT(x,y)"},
        {"x>=y|x<=y|x>y", "Or(Or(GE(x,y),LE(x,y)),GT(x,y))"},
        // application and lists
        {"f(x,y+1,z)", "Func(f,Ntuple(Ntuple(x,Add(y,1)),z))"},
        {"(a,b),c", "Ntuple(Ntuple(a,b),c)"},
        {"P(f(g(x)))", "Pred(P,Func(f,Func(g,x)))"},
        {"1(2)", "Func(1,2)"},
        {"(a,b)@c", "Elt(Ntuple(a,b),c)"},
        {"_(a,b)", "Neg(Ntuple(a,b))"},
        {"SUM(x,y)&PROD", "And(Pred(SUM,Ntuple(x,y)),PROD)"},
        // quantifiers
        {"ALL(x):P(x) & Q", "And(All(x,Pred(P,x)),Q)"},
        {"ALL(x):~EXIST[y]:x=y", "All(x,Not(Some(y,EQ(x,y))))"},
        {"exist(x):P(x) & all(x):Q(x)", "And(Some(x,Pred(P,x)),All(x,Pred(Q,x)))"},
    };
    for (const auto& [text, tree] : rows) {
        const Expression parsed = ParseExpression(text);
        EXPECT_EQ(parsed.error, "") << text;
        EXPECT_EQ(Tree(parsed), tree) << text;
    }
}

TEST(Parse, TablesOfAQuantifier) {
    NewStmtText = "ALL(x):[x@s => P(x)]";
    Parse();
    ASSERT_EQ(ParseError, "");
    const Expression parsed{NewStmtText, TokenTable, ParseTable, "", 0};
    const std::vector<std::string> tokens = {
        "( 0 33 7",      "ALL 1 0 0", "( 4 7 1",        "( 0 6 1",  "x 5 0 0 bound", ") 0 4 1",
        ") 6 3 1",       ": 7 0 0",   "[ 8 32 6",       "( 0 31 6", "( 0 19 4",      "( 0 14 1",
        "x 9 0 0 bound", ") 0 12 1",  "@ 10 0 0",       "( 0 18 2", "s 11 0 0",      ") 0 16 2",
        ") 0 11 4",      "=> 13 0 0", "( 0 30 5",       "( 0 24 3", "P 16 0 0",      ") 0 22 3",
        "( 17 29 1",     "( 0 28 1",  "x 18 0 0 bound", ") 0 26 1", ") 19 25 1",     ") 0 21 5",
        ") 0 10 6",      "] 20 9 6",  ") 0 1 7"};
    EXPECT_EQ(TokenLines(parsed), tokens);
    const NodeList nodes = {{},
                            {1, "x"},
                            {1, "s"},
                            {25, "P"},
                            {22, "", 1, 2},
                            {26, "", 3, 1},
                            {18, "", 4, 5},
                            {20, "", 1, 6}};
    EXPECT_EQ(parsed.nodes, nodes);
}

TEST(Parse, Refusals) {
    const struct {
        const char* text;
        const char* error;
        int errorPos;
    } rows[] = {
        // no expression, or two
        {"()", "24. Empty brackets. Expecting expression.", 1},
        {":", "26. Expecting expression.", 0},
        {"x y", "23. Expecting expression. May be a missing operator.", 0},
        {"f(x)(y)", "23. Expecting expression. May be a missing operator.", 0},
        {"f[x]", "23. Expecting expression. May be a missing operator.", 0},
        {"([P)]", "23. Expecting expression. May be a missing operator.", 0},
        {"x&&y", "23. Expecting expression. May be a missing operator.", 0},
        {"SUM(i,a,b):f(i)", "23. Expecting expression. May be a missing operator.", 0},
        {"[x y]", "7. Expecting binary operator", 0},
        {"[x||y]", "7. Expecting binary operator", 3},
        {"[`x]", "25. Expected algebraic expression", 0},
        // operands that are missing
        {"x+", "31. No expression on RHS of +", 2},
        {"x@", "31. No expression on RHS of <epsilon>", 2},
        {"+x", "29. No expression on LHS of +", 1},
        {"x^_y", "30. Invalid expression on RHS of ^", 2},
        {"x@~P", "30. Invalid expression on RHS of <epsilon>", 2},
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
        {"P=Q", "11. Expecting algebraic expression before = ", 2},
        {"x|P", "11. Expecting logical expression before |", 2},
        {"x<y<=z", "10. Expecting algebracic expression before <=", 4},
        {"P,x", "10. Expecting algebraic expression before ,", 2},
        {"x@y@z", "10. Expecting algebraic expression before <epsilon>", 4},
        {"a,b@c", "10. Expecting algebraic expression before <epsilon>", 4},
        {"[a,b]@c", "10. Expecting algebraic expression before <epsilon>", 6},
        {"P@Q", "10. Expecting algebraic expression before <epsilon>", 2},
        {"a,b@P", "12. Expecting algebraic expression after <epsilon>", 4},
        {"P & x", "12. Expecting logical expression after &&", 3},
        {"a,(b,c)", "12. Expecting algebraic expression after ,", 2},
        {"~x", "21. Expecting logicial expression after ~", 1},
        {"_P", "1. Expecting algebraic expression or n-tuple after _", 1},
        {"f(P)", "16. Expecting algebraic expression after f", 1},
        // quantifiers
        {"ALL(x)", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL x:P", "15. Invalid expression on RHS of quantifier", 1},
        {"P&ALL", "15. Invalid expression on RHS of quantifier", 3},
        {"ALL(x):&", "15. Invalid expression on RHS of quantifier", 1},
        {"(ALL(x):)", "15. Invalid expression on RHS of quantifier", 2},
        {"ALL(x)&&P(x)", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL(x)`P(x)", "15. Invalid expression on RHS of quantifier", 1},
        {"ALL(x,y):P(x,y)", "5. Expecting variable", 1},
        {"P|ALL(x):x", "8. Expecting expression on both sides of |", 2},
        {"EXIST(x):x", "3. Invalid expression on RHS of EXIST", 1},
        {"ALL((x)):P(x)", "3. Invalid expression on RHS of ALL", 1},
        {"ALL(x):ALL(x):P(x)", "4. Variable x already quantified within its scope.", 1},
        {"ALL(x):P(x) & Q(x)", "27. Inconsistent usage of variable x", 5},
        {"y=z & ALL(z):z=y", "27. Inconsistent usage of variable z", 3},
    };
    for (const auto& row : rows) {
        const Expression parsed = ParseExpression(row.text);
        EXPECT_EQ(parsed.error, row.error) << row.text;
        EXPECT_EQ(parsed.errorPos, row.errorPos) << row.text;
    }
}

}  // namespace tessaryn
