// From the text of a statement to its term and back.
//
// The editor stores each statement in one standard form, and only that form is read here: what was
// parsed is printed again and must give the text that stands in the file, so that no reader sees
// anything else than what was judged.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/Terms.h"

namespace tessaryn::check {

struct Statement {
    Term term = 0;
    std::vector<int> freeNames;  // small names that are free, in the order in which they appear
    std::string error;           // "" if it was read
    bool tooDeep = false;        // then error tells so
};

class StatementReader {
  public:
    explicit StatementReader(Terms& terms) : terms_(terms) {}

    // Reads a formula in standard form. A line break in it is CR LF and `tabs` TABs, in the place
    // of the blank ahead of a connective. The result stands until the next call.
    const Statement& Read(std::string_view text, int tabs);

    // The same for text in any layout, with redundant brackets.
    const Statement& ReadLoosely(std::string_view text);

    const Statement& Last() const { return statement_; }

    // What was read last in standard form, on one line. With `numbered`, the bound variables have
    // numbers instead of names, so that the texts of equal statements are equal.
    std::string Printed(bool numbered = false);

  private:
    // An expression as it is written, bound variables with their names.
    struct Written {
        Kind kind;
        int a = 0, b = 0;  // its operands in written_
        int name = -1;     // of a name, or of the variable of a quantifier
        Term term = 0;
        int depth = 1;
    };
    struct Use {  // of a name in the statement under work
        int statement = 0;
        int level = -1;  // of the quantifier that binds it here, counted from 0; -1 none
        bool free = false, bound = false;
    };
    struct Operator {
        Kind kind;
        int looseness;
        int length;
    };

    void Start(std::string_view text);
    void Parse();
    int Expression(int loosest);
    int Operand();
    int NameOrApplication();
    int Quantified(Kind kind);
    int Bracketed(char close, int loosest);
    Operator NextOperator() const;
    std::string_view NextName();
    int Add(Written written);
    int Combine(Kind kind, int left, int right);
    bool Fits(Kind kind, int left, int right) const;
    bool Expect(char c);
    void SkipBlanks();
    int Fail(std::string_view error);
    Use& UseOf(int name);

    void Print(int index, std::string& out, bool numbered, int level);
    void PrintOperand(int written, bool bare, const char* brackets, std::string& out, bool numbered,
                      int level);
    std::string DifferenceFrom(std::string_view text, int tabs);

    Terms& terms_;
    Statement statement_;
    std::string_view text_;
    std::size_t at_ = 0;
    int level_ = 0;    // quantifiers around the place
    int nesting_ = 0;  // brackets and prefixes around the place
    int root_ = 0;
    int count_ = 0;  // of statements read
    std::vector<Written> written_;
    std::vector<Use> uses_;  // by name number
    std::string printed_;
};

}  // namespace tessaryn::check
