#include "expr/Kind.h"

namespace tessaryn {

namespace {

int KindOfName(const std::string& token) {
    if (token[0] < 'A' || token[0] > 'Z') return Node::Atom;
    if (token == "ALL") return Node::ALL;
    return token == "EXIST" ? Node::EXIST : Node::Prop;
}

}  // namespace

int KindOf(const std::string& token) {
    const size_t length = token.size();
    switch (token[0]) {
        case '(':
            return Kind::RoundOpen;
        case ')':
            return Kind::RoundClose;
        case '[':
            return Kind::SquareOpen;
        case ']':
            return Kind::SquareClose;
        case ':':
            return Kind::Colon;
        case '^':
            return Node::Expo;
        case '_':
            return Node::ANeg;
        case '*':
            return Node::Mult;
        case '/':
            return Node::Div;
        case '+':
            return Node::Add;
        case '-':
            return Node::Subt;
        case ',':
            return Node::Ntuple;
        case '~':
            return Node::LNeg;
        case '@':
            return Node::Elt;
        case '`':
            return Node::Complement;
        case '&':
            return length == 1 ? Node::LAnd : Node::Intersection;
        case '|':
            return length == 1 ? Node::LOr : Node::Union;
        case '=':
            return length == 1 ? Node::EQ : Node::Imply;
        case '>':
            return length == 1 ? Node::GT : Node::GE;
        case '<':
            return length == 1 ? Node::LT : length == 2 ? Node::LE : Node::Iff;
        default:
            return KindOfName(token);
    }
}

}  // namespace tessaryn
