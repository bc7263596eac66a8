#include "check/Statement.h"

#include <algorithm>

namespace tessaryn::check {
namespace {

// How loosely a sign binds: an operand that binds more loosely needs brackets.
int Looseness(Kind kind) {
    switch (kind) {
        case Kind::Bound:
        case Kind::Name:
        case Kind::Apply:
            return 1;
        case Kind::Power:
            return 4;
        case Kind::Negative:
            return 5;
        case Kind::Times:
        case Kind::Divide:
            return 6;
        case Kind::Plus:
        case Kind::Minus:
            return 7;
        case Kind::Equal:
            return 12;
        case Kind::Less:
        case Kind::LessEqual:
        case Kind::More:
        case Kind::MoreEqual:
            return 13;
        case Kind::Element:
            return 15;
        case Kind::Not:
        case Kind::All:
        case Kind::Exist:
            return 16;
        case Kind::And:
            return 17;
        case Kind::Or:
            return 18;
        case Kind::Implies:
            return 19;
        case Kind::Iff:
            return 20;
        case Kind::Tuple:
            return 99;
    }
    return 99;
}
constexpr int LoosestFormula = 20;
constexpr int LoosestOfAll = 99;
constexpr int PrefixOperand = 15;  // of "~" and quantifiers; they themselves may follow as well
constexpr int NegativeOperand = 4;

const char* Sign(Kind kind) {
    switch (kind) {
        case Kind::Power:
            return "^";
        case Kind::Times:
            return "*";
        case Kind::Divide:
            return "/";
        case Kind::Plus:
            return "+";
        case Kind::Minus:
            return "-";
        case Kind::Tuple:
            return ",";
        case Kind::Equal:
            return "=";
        case Kind::Less:
            return "<";
        case Kind::LessEqual:
            return "<=";
        case Kind::More:
            return ">";
        case Kind::MoreEqual:
            return ">=";
        case Kind::Element:
            return " @ ";
        case Kind::And:
            return " & ";
        case Kind::Or:
            return " | ";
        case Kind::Implies:
            return " => ";
        case Kind::Iff:
            return " <=> ";
        default:
            return "";
    }
}

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}
bool StartsName(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || IsCapital(c);
}

}  // namespace

StatementReader::Use& StatementReader::UseOf(int name) {
    if (uses_.size() <= static_cast<std::size_t>(name)) {
        uses_.resize(static_cast<std::size_t>(name) * 2 + 16);
    }
    Use& use = uses_[static_cast<std::size_t>(name)];
    if (use.statement != count_) use = {count_};
    return use;
}

int StatementReader::Fail(std::string_view error) {
    if (statement_.error.empty()) statement_.error = error;
    at_ = text_.size();
    return 0;
}

void StatementReader::SkipBlanks() {
    while (at_ < text_.size() &&
           (text_[at_] == ' ' || text_[at_] == '\t' || text_[at_] == '\r' || text_[at_] == '\n')) {
        ++at_;
    }
}

bool StatementReader::Expect(char c) {
    SkipBlanks();
    if (at_ < text_.size() && text_[at_] == c) {
        ++at_;
        return true;
    }
    Fail("it is no expression");
    return false;
}

StatementReader::Operator StatementReader::NextOperator() const {
    const auto at = [this](std::size_t offset) {
        return at_ + offset < text_.size() ? text_[at_ + offset] : '\0';
    };
    Kind kind = Kind::Bound;
    int length = 1;
    switch (at(0)) {
        case '^':
            kind = Kind::Power;
            break;
        case '*':
            kind = Kind::Times;
            break;
        case '/':
            kind = Kind::Divide;
            break;
        case '+':
            kind = Kind::Plus;
            break;
        case '-':
            kind = Kind::Minus;
            break;
        case ',':
            kind = Kind::Tuple;
            break;
        case '@':
            kind = Kind::Element;
            break;
        case '&':
            kind = Kind::And;
            break;
        case '|':
            kind = Kind::Or;
            break;
        case '=':
            length = at(1) == '>' ? 2 : 1;
            kind = length == 2 ? Kind::Implies : Kind::Equal;
            break;
        case '<':
            length = at(1) != '=' ? 1 : at(2) == '>' ? 3 : 2;
            kind = length == 1 ? Kind::Less : length == 2 ? Kind::LessEqual : Kind::Iff;
            break;
        case '>':
            length = at(1) == '=' ? 2 : 1;
            kind = length == 2 ? Kind::MoreEqual : Kind::More;
            break;
        default:
            return {Kind::Bound, 1000, 0};
    }
    return {kind, Looseness(kind), length};
}

// "" if there is none.
std::string_view StatementReader::NextName() {
    SkipBlanks();
    const std::size_t start = at_;
    if (at_ < text_.size() && StartsName(text_[at_])) ++at_;
    while (at_ > start && at_ < text_.size() && (StartsName(text_[at_]) || text_[at_] == '\'')) {
        ++at_;
    }
    return text_.substr(start, at_ - start);
}

int StatementReader::Add(Written written) {
    if (written.depth > DeepestTerm) {
        statement_.tooDeep = true;
        return Fail("it is nested too deeply");
    }
    written_.push_back(written);
    return static_cast<int>(written_.size()) - 1;
}

// Whether the operands are of the sort that the sign takes.
bool StatementReader::Fits(Kind kind, int left, int right) const {
    const Term a = written_[static_cast<std::size_t>(left)].term;
    if (kind == Kind::Negative) return !terms_.IsFormula(a);
    if (kind == Kind::Not) return terms_.IsFormula(a);
    const Term b = written_[static_cast<std::size_t>(right)].term;
    if (kind >= Kind::And) return terms_.IsFormula(a) && terms_.IsFormula(b);
    if (kind == Kind::Tuple || kind == Kind::Element) {
        return !terms_.IsFormula(a) && terms_.IsTerm(b);
    }
    return terms_.IsTerm(a) && terms_.IsTerm(b);
}

int StatementReader::Combine(Kind kind, int left, int right) {
    if (!statement_.error.empty()) return 0;
    if (!Fits(kind, left, right)) return Fail("a sign stands beside what it does not go with");
    const Written& a = written_[static_cast<std::size_t>(left)];
    const Written& b = written_[static_cast<std::size_t>(right)];
    return Add(
        {kind, left, right, -1, terms_.Make(kind, a.term, b.term), std::max(a.depth, b.depth) + 1});
}

// Reads operands and the signs between them as long as these bind no more loosely than told. All
// group to the left.
int StatementReader::Expression(int loosest) {
    int left = Operand();
    while (true) {
        SkipBlanks();
        const Operator sign = NextOperator();
        if (sign.looseness > loosest) return left;
        at_ += static_cast<std::size_t>(sign.length);
        left = Combine(sign.kind, left, Expression(sign.looseness - 1));
    }
}

int StatementReader::Bracketed(char close, int loosest) {
    ++at_;
    const int inner = Expression(loosest);
    Expect(close);
    return inner;
}

int StatementReader::Operand() {
    SkipBlanks();
    if (++nesting_ > DeepestTerm) {
        statement_.tooDeep = true;
        Fail("it is nested too deeply");
    }
    int operand = 0;
    const char next = at_ < text_.size() ? text_[at_] : '\0';
    if (next == '(') {
        operand = Bracketed(')', LoosestOfAll);
    } else if (next == '[') {
        operand = Bracketed(']', LoosestFormula);
    } else if (next == '_' || next == '~') {
        ++at_;
        operand = Expression(next == '_' ? NegativeOperand : PrefixOperand);
        operand = Combine(next == '_' ? Kind::Negative : Kind::Not, operand, 0);
    } else {
        operand = NameOrApplication();
    }
    --nesting_;
    return operand;
}

int StatementReader::NameOrApplication() {
    const std::string_view name = NextName();
    if (name == "ALL") return Quantified(Kind::All);
    if (name == "EXIST") return Quantified(Kind::Exist);
    if (name.empty() || name == "SUM" || name == "PROD" || name == "All" || name == "all" ||
        name == "Exist" || name == "exist") {
        return Fail("it is no expression");
    }
    const int number = terms_.NameNumber(name);
    int written = 0;
    if (IsCapital(name.front())) {
        written = Add({Kind::Name, 0, 0, number, terms_.Make(Kind::Name, number)});
    } else {
        Use& use = UseOf(number);
        if (use.level >= 0) {
            const Term term = terms_.Make(Kind::Bound, level_ - 1 - use.level);
            written = Add({Kind::Bound, 0, 0, number, term});
        } else {
            if (!use.free) statement_.freeNames.push_back(number);
            use.free = true;
            written = Add({Kind::Name, 0, 0, number, terms_.Make(Kind::Name, number)});
        }
    }
    if (at_ >= text_.size() || text_[at_] != '(') return written;
    const int argument = Bracketed(')', LoosestOfAll);
    if (!statement_.error.empty()) return 0;
    const Written& head = written_[static_cast<std::size_t>(written)];
    const Written& given = written_[static_cast<std::size_t>(argument)];
    if (terms_.IsFormula(given.term)) return Fail("an argument is a formula");
    const Term term = terms_.Make(Kind::Apply, head.term, given.term);
    return Add({Kind::Apply, written, argument, -1, term, given.depth + 1});
}

int StatementReader::Quantified(Kind kind) {
    if (!Expect('(')) return 0;
    const std::string_view name = NextName();
    if (!Expect(')') || !Expect(':')) return 0;
    if (name.empty() || IsCapital(name.front())) return Fail("a quantifier has no variable");
    const int number = terms_.NameNumber(name);
    if (UseOf(number).level >= 0) return Fail("a variable is quantified within its own scope");
    UseOf(number).bound = true;
    UseOf(number).level = level_++;
    const int body = Expression(PrefixOperand);
    UseOf(number).level = -1;
    --level_;
    if (!statement_.error.empty()) return 0;
    const Written& inner = written_[static_cast<std::size_t>(body)];
    if (!terms_.IsFormula(inner.term)) return Fail("a quantifier has no formula");
    return Add({kind, body, 0, number, terms_.Make(kind, inner.term), inner.depth + 1});
}

void StatementReader::Start(std::string_view text) {
    ++count_;
    text_ = text;
    at_ = 0;
    level_ = nesting_ = 0;
    statement_.term = 0;
    statement_.freeNames.clear();
    statement_.error.clear();
    statement_.tooDeep = false;
    written_.clear();
    written_.push_back({Kind::Bound});
}

void StatementReader::Parse() {
    root_ = Expression(LoosestFormula);
    SkipBlanks();
    if (at_ < text_.size()) Fail("it is no expression");
    if (!statement_.error.empty()) return;
    statement_.term = written_[static_cast<std::size_t>(root_)].term;
    if (!terms_.IsFormula(statement_.term)) Fail("it states nothing");
    for (const int name : statement_.freeNames) {
        if (UseOf(name).bound) {
            Fail("the name " + std::string(terms_.NameText(name)) + " is both free and bound");
        }
    }
}

const Statement& StatementReader::Read(std::string_view text, int tabs) {
    Start(text);
    Parse();
    if (statement_.error.empty()) statement_.error = DifferenceFrom(text, tabs);
    return statement_;
}

const Statement& StatementReader::ReadLoosely(std::string_view text) {
    Start(text);
    Parse();
    return statement_;
}

// "" or how the text differs from the standard form.
std::string StatementReader::DifferenceFrom(std::string_view text, int tabs) {
    const std::size_t breakLength = 2 + static_cast<std::size_t>(tabs);
    printed_.clear();
    Print(root_, printed_, false, 0);
    std::size_t at = 0;
    for (std::size_t i = 0; i < printed_.size(); ++i) {
        if (at < text.size() && text[at] == printed_[i]) {
            ++at;
            continue;
        }
        const bool isBreak = printed_[i] == ' ' && text.compare(at, 2, "\r\n") == 0 &&
                             text.find_first_not_of('\t', at + 2) == at + breakLength;
        if (!isBreak || std::string_view("&|=<").find(printed_[i + 1]) == std::string_view::npos) {
            return "it is not in standard form";
        }
        at += breakLength;
    }
    return at == text.size() ? "" : "it is not in standard form";
}

std::string StatementReader::Printed(bool numbered) {
    std::string out;
    Print(root_, out, numbered, 0);
    return out;
}

void StatementReader::PrintOperand(int written, bool bare, const char* brackets, std::string& out,
                                   bool numbered, int level) {
    if (!bare) out += brackets[0];
    Print(written, out, numbered, level);
    if (!bare) out += brackets[1];
}

void StatementReader::Print(int index, std::string& out, bool numbered, int level) {
    const Written written = written_[static_cast<std::size_t>(index)];
    const auto looseness = [this](int operand) {
        return Looseness(written_[static_cast<std::size_t>(operand)].kind);
    };
    const int own = Looseness(written.kind);
    switch (written.kind) {
        case Kind::Bound:
            // A numbered variable is told by the level of its quantifier, as no name is.
            if (numbered) {
                out += '#';
                out += std::to_string(level - 1 - terms_[written.term].a);
                return;
            }
            [[fallthrough]];
        case Kind::Name:
            out += terms_.NameText(written.name);
            return;
        case Kind::Apply:
            Print(written.a, out, numbered, level);
            PrintOperand(written.b, false, "()", out, numbered, level);
            return;
        case Kind::Tuple:
            Print(written.a, out, numbered, level);
            out += ',';
            Print(written.b, out, numbered, level);
            return;
        case Kind::Negative:
            out += '_';
            PrintOperand(written.a, looseness(written.a) < own, "()", out, numbered, level);
            return;
        case Kind::Not:
            out += '~';
            PrintOperand(written.a, looseness(written.a) <= own, "[]", out, numbered, level);
            return;
        case Kind::All:
        case Kind::Exist:
            out += written.kind == Kind::All ? "ALL(" : "EXIST(";
            if (!numbered) out += terms_.NameText(written.name);
            out += "):";
            PrintOperand(written.a, looseness(written.a) <= own, "[]", out, numbered, level + 1);
            return;
        default:
            break;
    }
    const char* brackets = written.kind >= Kind::And ? "[]" : "()";
    PrintOperand(written.a, looseness(written.a) <= own, brackets, out, numbered, level);
    out += Sign(written.kind);
    PrintOperand(written.b, looseness(written.b) < own, brackets, out, numbered, level);
}

}  // namespace tessaryn::check
