#include "check/Terms.h"

#include <algorithm>

namespace tessaryn::check {
namespace {

std::size_t Hash(Kind kind, int a, int b) {
    std::uint64_t mixed = (static_cast<std::uint64_t>(static_cast<std::uint32_t>(a)) << 32) |
                          static_cast<std::uint32_t>(b);
    mixed = (mixed ^ (static_cast<std::uint64_t>(kind) << 27)) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(mixed ^ (mixed >> 29));
}

}  // namespace

bool IsQuantifier(Kind kind) {
    return kind == Kind::All || kind == Kind::Exist;
}

bool IsLeaf(Kind kind) {
    return kind == Kind::Bound || kind == Kind::Name;
}

Terms::Terms() : nodes_{{Kind::Bound, 0, 0, 0}}, table_(1024, 0) {}

Term Terms::Make(Kind kind, int a, int b) {
    const std::size_t mask = table_.size() - 1;
    std::size_t place = Hash(kind, a, b) & mask;
    for (; table_[place] != 0; place = (place + 1) & mask) {
        const Node& node = (*this)[table_[place]];
        if (node.kind == kind && node.a == a && node.b == b) return table_[place];
    }
    int loose = 0;
    if (kind == Kind::Bound) loose = a + 1;
    if (!IsLeaf(kind)) loose = std::max((*this)[a].loose, (*this)[b].loose);
    if (IsQuantifier(kind)) loose = std::max(0, loose - 1);
    const Term term = static_cast<Term>(nodes_.size());
    table_[place] = term;
    nodes_.push_back({kind, a, b, loose});
    if (nodes_.size() * 2 > table_.size()) Grow();
    return term;
}

void Terms::Grow() {
    table_.assign(table_.size() * 2, 0);
    const std::size_t mask = table_.size() - 1;
    for (std::size_t i = 1; i < nodes_.size(); ++i) {
        std::size_t place = Hash(nodes_[i].kind, nodes_[i].a, nodes_[i].b) & mask;
        while (table_[place] != 0) place = (place + 1) & mask;
        table_[place] = static_cast<Term>(i);
    }
}

int Terms::NameNumber(std::string_view name) {
    if (const auto known = numbers_.find(name); known != numbers_.end()) return known->second;
    const int number = NameCount();
    numbers_.emplace(names_.emplace_back(name), number);
    return number;
}

bool Terms::HasCapital(int name) const {
    const char first = NameText(name).front();
    return first >= 'A' && first <= 'Z';
}

bool Terms::IsFormula(Term term) const {
    const Node& node = (*this)[term];
    if (node.kind == Kind::Name) return HasCapital(node.a);
    if (node.kind == Kind::Apply) return IsFormula(node.a);
    return node.kind >= Kind::Equal;
}

bool Terms::IsTerm(Term term) const {
    return !IsFormula(term) && KindOf(term) != Kind::Tuple;
}

}  // namespace tessaryn::check
