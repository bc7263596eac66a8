#include "check/Schemes.h"

#include "check/SchemeTexts.h"
#include "check/Statement.h"

namespace tessaryn::check {

Term Schemes::Read(std::string_view text) {
    return StatementReader(terms_).ReadLoosely(text).term;
}

std::size_t Schemes::Size(Term term) const {
    const Node node = terms_[term];
    return IsLeaf(node.kind) ? 1 : 1 + Size(node.a) + Size(node.b);
}

bool Schemes::IsSetAxiom(Rule rule, Term term) {
    Orders* known = nullptr;
    for (Orders& orders : orders_) {
        if (orders.rule == rule) known = &orders;
    }
    if (known == nullptr) known = &orders_.emplace_back(Orders{rule, {}, {}});
    const std::size_t size = Size(term);
    for (int n = 1; n <= GreatestOrder; ++n) {
        const auto place = static_cast<std::size_t>(n - 1);
        if (place == known->terms.size()) {
            known->terms.push_back(Read(SetAxiomText(rule, n)));  // 0 if there is none
            known->sizes.push_back(Size(known->terms.back()));
        }
        if (known->terms[place] == term) return true;
        if (known->sizes[place] > size) return false;
    }
    return false;
}

void Schemes::ReadFixed() {
    for (const DefinitionText& definition : DefinitionTexts()) {
        definitions_.emplace_back(Read(definition.text), definition.sign);
    }
    for (const AxiomGroup& group : AxiomGroups()) {
        int number = 0;
        for (const std::string_view text : group.texts) {
            groups_.emplace_back(Read(text),
                                 std::string(group.name) + " " + std::to_string(++number));
        }
    }
}

namespace {

std::string Found(const std::vector<std::pair<Term, std::string>>& table, Term term) {
    for (const auto& [known, name] : table) {
        if (known == term) return name;
    }
    return "";
}

}  // namespace

std::string Schemes::DefinedSign(Term term) {
    if (definitions_.empty()) ReadFixed();
    return Found(definitions_, term);
}

std::string Schemes::GroupAxiom(Term term) {
    if (definitions_.empty()) ReadFixed();
    return Found(groups_, term);
}

}  // namespace tessaryn::check
