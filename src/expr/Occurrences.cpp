#include "expr/Occurrences.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>

namespace tessaryn {
namespace {

// Nodes that are the same have the same number. 0: no operand, or one that the term has nowhere;
// a node with an operand of the second kind never passes for one of the term, as each type of node
// has its own count of operands.
using Numbers = std::map<std::tuple<int, std::string, int, int>, int>;

std::tuple<int, std::string, int, int> KeyOf(const ParseRec& node, const std::vector<int>& number) {
    return {node.Rule, node.Name, number[static_cast<std::size_t>(node.Ptr1)],
            number[static_cast<std::size_t>(node.Ptr2)]};
}

// The two ends of a bracket pair as written.
struct Ends {
    int first;       // its first written token
    int last;        // its last one
    bool bracketed;  // those two are a bracket pair themselves
};

// Finds the ends of any pair of a token table in one step.
class EndFinder {
  public:
    explicit EndFinder(const Expression& statement)
        : statement_(statement),
          firstFrom_(statement.tokens.size()),
          lastUpTo_(statement.tokens.size()) {
        const TokenList& tokens = statement.tokens;
        for (std::size_t i = 1; i < tokens.size(); ++i) {
            lastUpTo_[i] = tokens[i].Position > 0 ? static_cast<int>(i) : lastUpTo_[i - 1];
        }
        int next = 0;
        for (std::size_t i = tokens.size() - 1; i > 0; --i) {
            if (tokens[i].Position > 0) next = static_cast<int>(i);
            firstFrom_[i] = next;
        }
    }

    Ends Of(int open, int close) const {
        const int first = firstFrom_[static_cast<std::size_t>(open)];
        const int last = lastUpTo_[static_cast<std::size_t>(close)];
        return {first, last, TokenAt(statement_, first).TPtr == last};
    }

    Span SpanOf(const Ends& ends) const {
        const Span whole = WrittenSpan(statement_, ends.first, ends.last);
        return ends.bracketed ? Span{whole.start + 1, whole.end - 1} : whole;
    }

  private:
    const Expression& statement_;
    std::vector<int> firstFrom_;  // by token: the first written one at or behind it
    std::vector<int> lastUpTo_;   // by token: the last written one at or ahead of it
};

}  // namespace

std::vector<bool> NodesThatAre(const NodeList& term, const NodeList& nodes) {
    Numbers numbers;
    std::vector<int> number(term.size());
    for (std::size_t n = 1; n < term.size(); ++n) {
        const int next = static_cast<int>(numbers.size()) + 1;
        number[n] = numbers.emplace(KeyOf(term[n], number), next).first->second;
    }
    const int wanted = number.back();

    std::vector<bool> same(nodes.size());
    number.assign(nodes.size(), 0);
    for (std::size_t n = 1; n < nodes.size(); ++n) {
        const auto found = numbers.find(KeyOf(nodes[n], number));
        if (found != numbers.end()) number[n] = found->second;
        same[n] = number[n] == wanted;
    }
    return same;
}

std::vector<Span> AllOccurrences(const NodeList& term, const Expression& statement, Search search) {
    const TokenList& tokens = statement.tokens;
    const std::vector<bool> same = NodesThatAre(term, statement.nodes);
    const EndFinder finder(statement);
    std::vector<Span> spans;
    for (int i = static_cast<int>(tokens.size()) - 1; i > 0;) {
        const TokenRec& token = TokenAt(statement, i);
        const bool closes = token.TPtr > 0 && token.TPtr < i;
        if (!closes || NodeAt(statement, token.DPtr).Rule != term.back().Rule) {
            --i;
            continue;
        }
        const bool found = same[static_cast<std::size_t>(token.DPtr)];
        const Ends ends = finder.Of(token.TPtr, i);
        if (found) {
            // Of doubly written brackets, the inner ones hold the same occurrence once more.
            const Span span = finder.SpanOf(ends);
            if (spans.empty() || span.end < spans.back().start) spans.push_back(span);
        }
        if (search == Search::AheadOfLastToken) {
            i = ends.last - (ends.bracketed ? 2 : 1);
        } else {
            i = found ? token.TPtr - 1 : i - 1;
        }
    }
    std::reverse(spans.begin(), spans.end());
    return spans;
}

std::optional<Span> OccurrenceAt(const NodeList& term, const Expression& statement, int place) {
    const TokenList& tokens = statement.tokens;
    const std::vector<bool> same = NodesThatAre(term, statement.nodes);
    const EndFinder finder(statement);
    for (int i = 1; i < static_cast<int>(tokens.size()); ++i) {
        const TokenRec& token = TokenAt(statement, i);
        if (token.TPtr <= i || !same[static_cast<std::size_t>(token.DPtr)]) continue;
        const Span span = finder.SpanOf(finder.Of(i, token.TPtr));
        if (span.start <= place && place <= span.end) return span;
    }
    return std::nullopt;
}

}  // namespace tessaryn
