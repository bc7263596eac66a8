#include <gtest/gtest.h>

#include "ParseLaws.h"

namespace tessaryn {

TEST(Print, CanonicalForms) {
    const std::pair<const char*, const char*> rows[] = {
        {"ALL(x):(x@s=>P(x))", "ALL(x):[x @ s => P(x)]"},
        {"all[x]:[~P(x)]", "ALL(x):~P(x)"},
        {"~(x=y)", "~x=y"},
        {"~(P & Q)", "~[P & Q]"},
        {"~(ALL(x):(P(x)))", "~ALL(x):P(x)"},
        // the left side may group by itself, the right one keeps its brackets
        {"a-(b-c)", "a-(b-c)"},
        {"a+(b*c)", "a+b*c"},
        {"(a+b)*c", "(a+b)*c"},
        {"a+((b*c)/(d^2))", "a+b*c/d^2"},
        {"(2^3)^4", "2^3^4"},
        {"P=>Q=>R", "P => Q => R"},
        {"P|Q&R<=>S=>T", "P | Q & R <=> S => T"},
        {"x>=y|(x<=y)|x>y", "x>=y | x<=y | x>y"},
        {"x*_y<_(x^2)", "x*_y<_x^2"},
        {"~~x@s+1", "~~x @ s+1"},
        {"aLL=alls", "aLL=alls"},
        {"SUM(x,y)&PROD", "SUM(x,y) & PROD"},
        {"(ALL(x):~(EXIST[y]:x=y)) & Q", "ALL(x):~EXIST(y):x=y & Q"},
        {"P & (Q & R)", "P & [Q & R]"},
        {"P=>(Q=>R)<=>S", "P => [Q => R] <=> S"},
        {"2^(3^4)", "2^(3^4)"},
        // negatives, lists, applications
        {"__x", "_(_x)"},
        {"_(a*b)", "_(a*b)"},
        {"(_2)^3", "(_2)^3"},
        {"_(a,b)", "_(a,b)"},
        {"((a,b),c)@s", "(a,b,c) @ s"},
        {"f((a),[b],c)", "f(a,b,c)"},
        // a line break stays only right ahead of a connective
        {"P\r\n& Q", "P\r\n& Q"},
        {"P\n|Q <=>\r\nR\r\n => S", "P\r\n| Q <=> R => S"},
        {"P & [x<=y\r\n=>x>=\r\ny\n<=>Q]", "P & [x<=y\r\n=> x>=y\r\n<=> Q]"},
        {"x\r\n+y", "x+y"},
    };
    for (const auto& [text, printed] : rows) {
        NewStmtText = text;
        Parse();
        EXPECT_EQ(ParseError, "") << text;
        EXPECT_EQ(PrintExpression(), printed);
        EXPECT_EQ(BrokenLaw(text), "") << text;
    }
}

TEST(Same, Pairs) {
    const struct {
        const char* a;
        const char* b;
        bool same;
    } rows[] = {
        {" P\r\n", "[((P))]", true},
        {"ALL(x):P(x)", "all[y]:(P(y))", true},
        {"ALL(x):P(x)", "EXIST(x):P(x)", false},
        {"ALL(x):ALL(y):R(x,y)", "ALL(y):ALL(x):R(y,x)", true},
        {"ALL(x):ALL(y):R(x,y)", "ALL(y):ALL(x):R(x,y)", false},
        {"ALL(x):P(x) & ALL(x):Q(x)", "ALL(y):P(y) & ALL(z):Q(z)", true},
        {"ALL(x):P(x,y)", "ALL(z):P(z,y)", true},
        {"ALL(x):P(x,y)", "ALL(y):P(y,y)", false},
        {"P(x)", "P(y)", false},
        {"a+b+c", "a+(b+c)", false},
        {"~~P", "P", false},
        {"ALL(x):P(x) & Q(x1)", "ALL(y):P(y) & Q(y)", false},
        {"ALL(x):EXIST(y):f(x)=y & EXIST(z):z=z", "ALL(z):EXIST(x):f(z)=x & EXIST(x):x=x", true},
        {"ALL(f):f(a)=f(b)", "ALL(g):g(a)=g(b)", true},
        {"P", "P &", false},
        // a name like a generated one
        {"ALL(x):ALL(y):R(x,y)", "ALL(v#2):ALL(v#1):R(v#2,v#1)", false},
        // SUM and PROD bind a name in their first place when applied
        {"SUM(x,y)", "SUM(z,y)", true},
        {"SUM & P(x)", "SUM & P(y)", false},
        {"SUM(x)", "SUM(y)", false},
        // renamed, the variable is free and bound
        {"ALL(x):x=y & PROD(x,y)", "ALL(x):x=y & PROD(x,y)", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Same(row.a, row.b), row.same) << row.a << " / " << row.b;
        EXPECT_EQ(Same(row.b, row.a), row.same) << row.b << " / " << row.a;
        const std::string form = NamelessForm(row.a);
        const bool alike = !form.empty() && form == NamelessForm(row.b);
        EXPECT_EQ(alike, row.same) << row.a << " / " << row.b;
    }
}

}  // namespace tessaryn
