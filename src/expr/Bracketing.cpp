// The passes run over a chain of links, in which a bracket pair is put in by a constant step, and
// partners are links that never move. Indexes are given out once, at the end. Operators never
// change their order, so that each pass has its operators lined up and looks at nothing else.
#include "expr/Bracketing.h"

#include <array>
#include <functional>
#include <iterator>
#include <string_view>
#include <utility>

#include "expr/Kind.h"
#include "expr/Parse.h"

namespace tessaryn {

namespace {

// Links 1 to n are the n lexed tokens, later ones the brackets put in. Link 0 is the end on both
// sides: its next is the first of the chain, its prev the last.
struct Link {
    int next = 0;
    int prev = 0;
    int partner = 0;  // of a bracket; else 0
    int node = 0;     // of the brackets round a name; else 0
    int kind = 0;
    int source = 0;  // the lexed token that it is or was set against: ascends in the chain
    int inLine = 0;  // the operator after this one in its pass, 0 none
    int index = 0;   // in the finished table
};

enum Pass { NoPass, PrefixMinus = 2, LogicalPrefixes = 10, PassCount = 15 };

constexpr std::array<unsigned char, Kind::Count> PassOfAll() {
    std::array<unsigned char, Kind::Count> passes{};
    const auto put = [&passes](unsigned char pass, std::initializer_list<int> kinds) {
        for (const int kind : kinds) passes[kind] = pass;
    };
    put(1, {Node::Expo});
    put(PrefixMinus, {Node::ANeg});
    put(3, {Node::Mult, Node::Div});
    put(4, {Node::Add, Node::Subt});
    put(5, {Node::Ntuple});
    put(6, {Node::EQ});
    put(7, {Node::LT, Node::GT});
    put(8, {Node::LE, Node::GE});
    put(9, {Node::Elt});
    put(LogicalPrefixes, {Node::LNeg, Node::ALL, Node::EXIST});
    put(11, {Node::LAnd});
    put(12, {Node::LOr});
    put(13, {Node::Imply});
    put(14, {Node::Iff});
    return passes;
}

constexpr std::array<unsigned char, Kind::Count> passOf = PassOfAll();

// The operators of one pass in the order in which it takes them.
struct Line {
    int first = 0;
    int last = 0;
};

struct Chain {
    TokenList& tokens;
    NodeList& nodes;
    std::string& error;
    int& errorPos;
    std::vector<Link> links;
    int lexed = 0;  // number of lexed tokens
    std::array<Line, PassCount> lines{};
};

int Next(const Chain& chain, int link) {
    return chain.links[link].next;
}
int Prev(const Chain& chain, int link) {
    return chain.links[link].prev;
}
int KindAt(const Chain& chain, int link) {
    return chain.links[link].kind;
}
int Partner(const Chain& chain, int link) {
    return chain.links[link].partner;
}

bool Fail(Chain& chain, std::string message, int link) {
    chain.error = std::move(message);
    chain.errorPos = chain.tokens[link].Position;
    return false;
}

// Leaves an operator in its pass; prefix operators are taken from right to left.
void LineUp(Chain& chain, int link) {
    const int pass = passOf[KindAt(chain, link)];
    if (pass == NoPass) return;
    Line& line = chain.lines[pass];
    if (pass == PrefixMinus || pass == LogicalPrefixes) {
        chain.links[link].inLine = std::exchange(line.first, link);
    } else {
        (line.last == 0 ? line.first : chain.links[line.last].inLine) = link;
        line.last = link;
    }
}

void MakeChain(Chain& chain) {
    chain.lexed = static_cast<int>(chain.tokens.size()) - 1;
    chain.links.reserve(3 * chain.tokens.size());  // no token brings more than one pair
    chain.links.resize(chain.tokens.size());
    for (int i = 0; i <= chain.lexed; i++) {
        Link& link = chain.links[i];
        link.next = i < chain.lexed ? i + 1 : 0;
        link.prev = i > 0 ? i - 1 : chain.lexed;
        link.partner = chain.tokens[i].TPtr;
        link.kind = i > 0 ? KindOf(chain.tokens[i].Token) : 0;
        link.source = i;
        LineUp(chain, i);
    }
}

// Puts "(" ahead of the link left and ")" behind the link right. False with the error if the table
// would grow beyond its limit.
bool InsertPair(Chain& chain, int left, int right, int node = 0) {
    std::vector<Link>& links = chain.links;
    const int open = static_cast<int>(links.size());
    const int close = open + 1;
    if (close > MaxTokens) {
        chain.error = UnableToParse;
        chain.errorPos = 0;
        return false;
    }
    const int before = links[left].prev;
    const int behind = links[right].next;
    links.push_back({.next = left,
                     .prev = before,
                     .partner = close,
                     .node = node,
                     .kind = Kind::RoundOpen,
                     .source = links[left].source});
    links.push_back({.next = behind,
                     .prev = right,
                     .partner = open,
                     .node = node,
                     .kind = Kind::RoundClose,
                     .source = links[right].source});
    links[before].next = links[left].prev = open;
    links[behind].prev = links[right].next = close;
    return true;
}

// From a name to its leaf: open addressing over indexes of the parse table.
struct LeafTable {
    NodeList& nodes;
    std::vector<int> slots = std::vector<int>(64);
};

int& SlotOf(LeafTable& leaves, const std::string& name) {
    const size_t mask = leaves.slots.size() - 1;
    size_t at = std::hash<std::string_view>()(name) & mask;
    while (leaves.slots[at] != 0 && leaves.nodes[leaves.slots[at]].Name != name)
        at = (at + 1) & mask;
    return leaves.slots[at];
}

void GrowTable(LeafTable& leaves) {
    leaves.slots.assign(leaves.slots.size() * 4, 0);
    for (int node = 1; node < std::ssize(leaves.nodes); node++)
        SlotOf(leaves, leaves.nodes[node].Name) = node;
}

int LeafOf(LeafTable& leaves, const std::string& name, int kind) {
    if (leaves.nodes.size() * 2 > leaves.slots.size()) GrowTable(leaves);
    int& slot = SlotOf(leaves, name);
    if (slot == 0) {
        slot = static_cast<int>(leaves.nodes.size());
        leaves.nodes.push_back({.Rule = kind, .Name = name});
    }
    return slot;
}

bool WrapAtoms(Chain& chain) {
    LeafTable leaves{chain.nodes};
    for (int i = 1; i <= chain.lexed; i++) {
        const int kind = KindAt(chain, i);
        if (!IsName(kind)) continue;
        if (!InsertPair(chain, i, i, LeafOf(leaves, chain.tokens[i].Token, kind))) return false;
    }
    return true;
}

// An application is a name with a written round bracket straight behind it.
bool BracketFunctions(Chain& chain) {
    for (int i = 1; i < chain.lexed; i++) {
        if (!IsName(KindAt(chain, i)) || KindAt(chain, i + 1) != Kind::RoundOpen) continue;
        if (!InsertPair(chain, Prev(chain, i), Partner(chain, i + 1))) return false;
    }
    return true;
}

std::string ShownSign(const std::string& sign) {
    return sign == "@" ? "<epsilon>" : sign;
}

// The operator's operands must be whole groups at its sides; a prefix has none on the left.
bool BracketOperator(Chain& chain, int i, bool prefix) {
    const std::string& sign = chain.tokens[i].Token;
    int left = i;
    if (!prefix) {
        const int before = Prev(chain, i);
        if (before == 0) return Fail(chain, "29. No expression on LHS of " + sign, i);
        if (!IsClosing(KindAt(chain, before)))
            return Fail(chain, "28. Invalid expression on LHS of " + sign, i);
        left = Partner(chain, before);
    }
    const int behind = Next(chain, i);
    if (behind == 0) return Fail(chain, "31. No expression on RHS of " + ShownSign(sign), i);
    if (!IsOpening(KindAt(chain, behind)))
        return Fail(chain, "30. Invalid expression on RHS of " + ShownSign(sign), i);
    return InsertPair(chain, left, Partner(chain, behind));
}

bool BracketNegation(Chain& chain, int i) {
    const int behind = Next(chain, i);
    if (behind == 0 || Next(chain, behind) == 0)
        return Fail(chain, "15. Expecting logical expression on RHS of ~", i);
    if (!IsOpening(KindAt(chain, behind)))
        return Fail(chain, "14. Expecting logical expression on RHS of ~", i);
    return InsertPair(chain, i, Partner(chain, behind));
}

bool NeverAColon(int kind) {
    return kind == Node::Intersection || kind == Node::Union || kind == Node::Complement;
}

// The last link of a quantifier's group: that of the body, which stands one token behind the
// bracket of the variable. 0 if there is none; then the quantifier is refused. The bracket is one
// that was written, else the group would be read a pair out of step; and a body whose partner lies
// ahead of the quantifier, as in "(ALL(x):)", would turn the group inside out.
int EndOfQuantifier(const Chain& chain, int quantifier) {
    const int written = quantifier + 1;
    if (written > chain.lexed || chain.tokens[written].TPtr == 0) return 0;
    const int colon = Next(chain, Partner(chain, Next(chain, quantifier)));
    if (colon == 0 || NeverAColon(KindAt(chain, colon))) return 0;
    const int end = Partner(chain, Next(chain, colon));
    return chain.links[end].source > quantifier ? end : 0;
}

bool BracketQuantifier(Chain& chain, int i) {
    const int end = EndOfQuantifier(chain, i);
    if (end == 0) return Fail(chain, "15. Invalid expression on RHS of quantifier", i);
    return InsertPair(chain, i, end);
}

bool RunPass(Chain& chain, int pass) {
    for (int i = chain.lines[pass].first; i != 0; i = chain.links[i].inLine) {
        bool bracketed = false;
        if (pass != LogicalPrefixes) {
            bracketed = BracketOperator(chain, i, pass == PrefixMinus);
        } else if (KindAt(chain, i) == Node::LNeg) {
            bracketed = BracketNegation(chain, i);
        } else {
            bracketed = BracketQuantifier(chain, i);
        }
        if (!bracketed) return false;
    }
    return true;
}

// Lays the chain out as the token table, partners linked by their places there.
void FillTable(Chain& chain) {
    TokenList table;
    table.reserve(chain.links.size());
    table.emplace_back();
    for (int i = Next(chain, 0); i != 0; i = Next(chain, i)) {
        Link& link = chain.links[i];
        link.index = static_cast<int>(table.size());
        if (i > chain.lexed) {
            table.emplace_back(link.kind == Kind::RoundOpen ? "(" : ")", 0).DPtr = link.node;
        } else {
            table.push_back(std::move(chain.tokens[i]));
        }
        if (!IsClosing(link.kind)) continue;
        const int open = chain.links[link.partner].index;
        table.back().TPtr = open;
        table[open].TPtr = link.index;
    }
    chain.tokens = std::move(table);
}

}  // namespace

bool BracketTokens(Expression& expression) {
    auto& [text, tokens, nodes, error, errorPos] = expression;
    Chain chain{tokens, nodes, error, errorPos, {}};
    MakeChain(chain);
    if (!WrapAtoms(chain) || !BracketFunctions(chain)) return false;
    for (int pass = 1; pass < PassCount; pass++)
        if (!RunPass(chain, pass)) return false;
    const int first = Next(chain, 0);
    if (chain.links.size() > 2 && Partner(chain, first) != Prev(chain, 0)) {
        error = "23. Expecting expression. May be a missing operator.";
        errorPos = 0;
        return false;
    }
    nodes.reserve((chain.links.size() - static_cast<size_t>(chain.lexed)) / 2 + 1);
    FillTable(chain);
    return true;
}

}  // namespace tessaryn
