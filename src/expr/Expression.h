// The records of the expression language and the globals that hold the expression in hand.
//
// A token table and a parse table are indexed from 1: element 0 exists and holds nothing, so that a
// table of size 1 is empty. Lex fills the token table, Parse brackets it fully and builds the parse
// table; what the two look like after a successful Parse is told in Parse.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

struct TokenRec {
    TokenRec() = default;
    TokenRec(std::string_view token, int position) : Token(token), Position(position) {}

    std::string Token;   // text in normal form; the quantifiers are "ALL" and "EXIST"
    int Position = 0;    // first character in the source, 1-based bytes; 0: bracket put in by Parse
    int TPtr = 0;        // of a bracket: its partner in the token table; else 0
    int DPtr = 0;        // of a bracket: the node of the group that it encloses; else 0
    bool Bound = false;  // a name in the scope of a quantifier of that name

    bool operator==(const TokenRec&) const = default;
};

struct ParseRec {
    int Rule = 0;      // node type, 1 to 29
    std::string Name;  // of Atom and Prop; "" for the others
    int Ptr1 = 0;      // first or only operand; 0 none
    int Ptr2 = 0;      // second operand; 0 none

    bool operator==(const ParseRec&) const = default;
};

using TokenList = std::vector<TokenRec>;
using NodeList = std::vector<ParseRec>;

// Node types, the values of ParseRec::Rule.
namespace Node {
enum Type {
    Atom = 1,
    Expo,
    ANeg,
    Mult,
    Div,
    Add,
    Subt,
    Ntuple,
    Func,
    EQ,
    LT,
    LE,
    GT,
    GE,
    LNeg,
    LAnd,
    LOr,
    Imply,
    Iff,
    ALL,
    EXIST,
    Elt,
    SUM,
    PROD,
    Prop,
    Pred,
    Intersection,
    Union,
    Complement
};
}  // namespace Node

// The sign and the binding strength of each node type, by number; a smaller NodePrec binds tighter.
extern const char* const NodeOp[30];
extern const int NodePrec[30];

// Classes of node types.
bool IsAlgebraic(int rule);          // a term
bool IsAlgebraicOrNtuple(int rule);  // a term or a list of terms
bool IsLogical(int rule);            // a formula

// Limits of a parse: longer texts and larger token tables are refused.
inline constexpr int MaxSourceLength = 32767;
inline constexpr int MaxTokens = 32767;

// A text and what it parses to.
struct Expression {
    std::string text;
    TokenList tokens = TokenList(1);  // element 0 empty
    NodeList nodes = NodeList(1);     // element 0 empty; the last is the root
    std::string error;                // "" on success; otherwise the tables are unusable
    int errorPos = 0;                 // 1-based byte of text that the error is about, 0 none
};

inline const ParseRec& Root(const Expression& expression) {
    return expression.nodes.back();
}

// The expression in hand, and its parts by their settled names. Parse and PutStmt read NewStmtText
// and write the rest. ParseError is also the result of an entry dialogue.
inline Expression InHand;
inline std::string& NewStmtText = InHand.text;
inline TokenList& TokenTable = InHand.tokens;
inline NodeList& ParseTable = InHand.nodes;
inline std::string& ParseError = InHand.error;
inline int& ParseErrorPos = InHand.errorPos;

// A second expression, kept by a rule across a parse or a dialogue.
inline Expression Second;
inline std::string& StmtText2 = Second.text;
inline TokenList& TokenTable2 = Second.tokens;
inline NodeList& ParseTable2 = Second.nodes;

}  // namespace tessaryn
