#include "expr/PrintExpression.h"

#include <string_view>
#include <utility>
#include <vector>

#include "expr/Kind.h"

namespace tessaryn {

namespace {

bool IsConnective(int rule) {
    return rule >= Node::LAnd && rule <= Node::Iff;
}

// For each connective of the source in its order, whether it begins a line there.
std::vector<bool> BreaksOf(const std::string& source, const TokenList& tokens) {
    std::vector<bool> breaks;
    if (source.find('\n') == source.npos) return breaks;
    for (size_t i = 1; i < tokens.size(); i++) {
        if (!IsConnective(KindOf(tokens[i].Token))) continue;
        const auto position = static_cast<size_t>(tokens[i].Position);
        breaks.push_back(position >= 2 && position <= source.size() &&
                         source[position - 2] == '\n');
    }
    return breaks;
}

// What is still to be printed: a node, or a fixed text if there is none.
struct Piece {
    int node;
    std::string_view text;
    bool connective = false;
};

// The pieces to come lie on a stack, the next one on top, so that no text is copied twice and no
// depth of a tree is too large.
struct Printer {
    const NodeList& nodes;
    std::vector<bool> breaks;
    std::vector<Piece> stack;
    size_t connectives = 0;  // printed so far
    std::string text;
};

void Push(Printer& printer, std::string_view text) {
    printer.stack.push_back({0, text});
}

void PushOperand(Printer& printer, int node, bool bracketed, std::string_view brackets) {
    if (bracketed) Push(printer, brackets.substr(1, 1));
    printer.stack.push_back({node, {}});
    if (bracketed) Push(printer, brackets.substr(0, 1));
}

// Pushes the operands and signs of a node, the last first.
void PushBinary(Printer& printer, const ParseRec& node) {
    const bool connective = IsConnective(node.Rule);
    const std::string_view brackets = connective ? "[]" : "()";
    const int own = NodePrec[node.Rule];
    const int left = NodePrec[printer.nodes[node.Ptr1].Rule];
    const int right = NodePrec[printer.nodes[node.Ptr2].Rule];
    PushOperand(printer, node.Ptr2, right >= own, brackets);
    if (connective) {
        printer.stack.push_back({0, NodeOp[node.Rule], true});
    } else {
        Push(printer, node.Rule == Node::Elt ? " @ " : NodeOp[node.Rule]);
    }
    PushOperand(printer, node.Ptr1, left > own, brackets);
}

void PushNode(Printer& printer, const ParseRec& node) {
    const int first = printer.nodes[node.Ptr1].Rule;
    const int own = NodePrec[node.Rule];
    switch (node.Rule) {
        case Node::Atom:
        case Node::Prop:
            printer.text += node.Name;
            break;
        case Node::Ntuple:
            PushOperand(printer, node.Ptr2, false, {});
            Push(printer, ",");
            PushOperand(printer, node.Ptr1, false, {});
            break;
        case Node::Func:
        case Node::Pred:
            PushOperand(printer, node.Ptr2, true, "()");
            PushOperand(printer, node.Ptr1, false, {});
            break;
        case Node::ANeg:
            PushOperand(printer, node.Ptr1, NodePrec[first] >= own, "()");
            Push(printer, "_");
            break;
        case Node::LNeg:
            PushOperand(printer, node.Ptr1, NodePrec[first] > own, "[]");
            Push(printer, "~");
            break;
        case Node::ALL:
        case Node::EXIST:
            PushOperand(printer, node.Ptr2, NodePrec[printer.nodes[node.Ptr2].Rule] > own, "[]");
            Push(printer, "):");
            PushOperand(printer, node.Ptr1, false, {});
            Push(printer, "(");
            Push(printer, NodeOp[node.Rule]);
            break;
        default:
            PushBinary(printer, node);
    }
}

// Connectives keep their order from the source, so that they can be counted off.
void PrintConnective(Printer& printer, std::string_view sign) {
    const size_t number = printer.connectives++;
    const bool breaks = number < printer.breaks.size() && printer.breaks[number];
    printer.text += breaks ? "\r\n" : " ";
    printer.text += sign;
    printer.text += ' ';
}

}  // namespace

std::string PrintExpression() {
    return PrintExpression(InHand);
}

std::string PrintExpression(const Expression& expression) {
    const NodeList& nodes = expression.nodes;
    if (nodes.size() < 2) return {};
    Printer printer{nodes, BreaksOf(expression.text, expression.tokens), {}, 0, {}};
    printer.text.reserve(expression.text.size() * 2);
    printer.stack.reserve(64);
    printer.stack.push_back({static_cast<int>(nodes.size()) - 1, {}});
    while (!printer.stack.empty()) {
        const Piece& piece = printer.stack.back();
        if (const int node = piece.node; node != 0) {
            printer.stack.pop_back();
            PushNode(printer, nodes[node]);
            continue;
        }
        if (piece.connective) {
            PrintConnective(printer, piece.text);
        } else {
            printer.text += piece.text;
        }
        printer.stack.pop_back();
    }
    return std::move(printer.text);
}

}  // namespace tessaryn
