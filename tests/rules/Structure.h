// A small world in which a statement is true or false.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "expr/Operands.h"
#include "expr/Parse.h"

namespace tessaryn {

// A few things, numbered from 0. What a name without a value, a function or a predicate stands for
// is drawn by lot, always the same for one seed. 0 and 1 are the truth values as well.
class Structure {
  public:
    Structure(unsigned seed, int size) : seed_(seed), size_(size) {}

    bool Holds(const Expression& statement) {
        statement_ = &statement;
        return Value(RootIndex(statement)) != 0;
    }

    // Does a test succeed for all values of the names, or for some?
    bool Try(const std::vector<std::string>& names, bool all, const std::function<bool()>& test,
             std::size_t first = 0) {
        if (first == names.size()) return test();
        const std::map<std::string, int> before = values;
        bool result = all;
        for (int value = 0; value < size_ && result == all; ++value) {
            values[names[first]] = value;
            result = Try(names, all, test, first + 1);
        }
        values = before;
        return result;
    }

    std::map<std::string, int> values;

  private:
    // The same on every machine.
    int Draw(const std::string& what, int limit) const {
        unsigned hash = seed_;
        for (const char c : what) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
        hash = (hash ^ (hash >> 15)) * 2246822519U;
        return static_cast<int>((hash ^ (hash >> 13)) % static_cast<unsigned>(limit));
    }

    std::string Values(int n) {
        const ParseRec& node = NodeAt(*statement_, n);
        if (node.Rule != Node::Ntuple) return std::to_string(Value(n));
        return Values(node.Ptr1) + "," + Values(node.Ptr2);
    }

    int Value(int n) {
        const ParseRec& node = NodeAt(*statement_, n);
        const auto left = [&] { return Value(node.Ptr1); };
        const auto right = [&] { return Value(node.Ptr2); };
        switch (node.Rule) {
            case Node::Atom:
                return values.contains(node.Name) ? values[node.Name] : Draw(node.Name, size_);
            case Node::Prop:
                return Draw(node.Name, 2);
            case Node::Pred:
                return Draw(NodeAt(*statement_, node.Ptr1).Name + "(" + Values(node.Ptr2), 2);
            case Node::LNeg:
                return 1 - left();
            case Node::LAnd:
                return left() & right();
            case Node::LOr:
                return left() | right();
            case Node::Imply:
                return (1 - left()) | right();
            case Node::Iff:
            case Node::EQ:
                return left() == right() ? 1 : 0;
            case Node::ALL:
            case Node::EXIST:
                return Try({NodeAt(*statement_, node.Ptr1).Name}, node.Rule == Node::ALL,
                           [&] { return right() != 0; })
                           ? 1
                           : 0;
            default:
                return Draw(std::to_string(node.Rule) + " " + Values(node.Ptr1) + " " +
                                (node.Ptr2 == 0 ? "" : Values(node.Ptr2)),
                            2);
        }
    }

    unsigned seed_;
    int size_;
    const Expression* statement_ = nullptr;
};

}  // namespace tessaryn
