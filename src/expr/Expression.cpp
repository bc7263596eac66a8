#include "expr/Expression.h"

namespace tessaryn {

const char* const NodeOp[30] = {"",    "",      "^",  "_",   "*",    "/", "+", "-",  ",",  "",
                                "=",   "<",     "<=", ">",   ">=",   "~", "&", "|",  "=>", "<=>",
                                "ALL", "EXIST", "@",  "SUM", "PROD", "",  "",  "&&", "||", "`"};

const int NodePrec[30] = {0,  1,  4,  5,  6,  6,  7,  7,  99, 1, 12, 13, 13, 13, 13,
                          16, 17, 18, 19, 20, 16, 16, 15, 1,  1, 1,  1,  9,  10, 8};

bool IsAlgebraic(int rule) {
    return (rule >= Node::Atom && rule <= Node::Subt) || rule == Node::Func;
}

bool IsAlgebraicOrNtuple(int rule) {
    return rule >= Node::Atom && rule <= Node::Func;
}

bool IsLogical(int rule) {
    return (rule >= Node::EQ && rule <= Node::Elt) || rule == Node::Prop || rule == Node::Pred;
}

}  // namespace tessaryn
