#include "expr/Kind.h"

#include <array>
#include <string_view>

namespace tessaryn {

namespace {

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

// The first character of a sign and its length tell which one it is.
using SignTable = std::array<std::array<unsigned char, 4>, 256>;

SignTable MakeSignTable() {
    SignTable table{};
    const auto put = [&table](std::string_view sign, int kind) {
        table[static_cast<unsigned char>(sign[0])][sign.size()] = static_cast<unsigned char>(kind);
    };
    for (int type = Node::Atom; type <= Node::Complement; type++) {
        const std::string_view sign = NodeOp[type];
        if (!sign.empty() && !IsCapital(sign[0])) put(sign, type);
    }
    put(":", Kind::Colon);
    put("(", Kind::RoundOpen);
    put(")", Kind::RoundClose);
    put("[", Kind::SquareOpen);
    put("]", Kind::SquareClose);
    return table;
}

const SignTable signTable = MakeSignTable();

}  // namespace

int KindOf(const std::string& token) {
    if (IsCapital(token[0]))
        return token == "ALL" ? Node::ALL : token == "EXIST" ? Node::EXIST : Node::Prop;
    if (token.size() > 3) return Node::Atom;
    const int sign = signTable[static_cast<unsigned char>(token[0])][token.size()];
    return sign != 0 ? sign : Node::Atom;
}

}  // namespace tessaryn
