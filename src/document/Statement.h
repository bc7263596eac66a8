// One statement of a document.
//
// A document's ProofText is an optional introduction and one block for each statement, in table
// order, with nothing between them:
//
//   introduction, CR LF CR LF          if IntroEnd > 0
//   comment, CR LF CR LF               if EndUserComment > 0
//   depth TABs, number, TAB, statement text (a line break in it is CR LF TAB), CR LF TAB
//   depth TABs, rule annotation, CR LF CR LF
//
// depth counts the closed premise blocks around the statement; it is no field but follows from
// StartRule - EndStmt - 4. A statement's text exists nowhere else. What always holds after a
// command stands in Invariants.cpp, as a check.
#pragma once

#include <string>
#include <string_view>

#include "document/KeptText.h"

namespace tessaryn {

struct Statement {  // small members together: there are 32,000, and many walks over them all
    int Rule = 0;   // rule number that made it
    int Arg1 = 0;   // line references; 0 none. Of a closed Premise: the line of its Conclusion
    int Arg2 = 0;
    bool Visible = false;    // drawn in the display
    bool Highlight = false;  // the number is bold
    bool Flagged = false;    // scratch of deletion: doomed
    int NewNumber = 0;       // scratch of deletion: number after it
    int StartLine = 0;  // first byte of the block; this and the next five are 1-based in ProofText
    int EndUserComment = 0;   // last byte of the comment; 0 none
    int StartStmt = 0;        // first byte of the statement text
    int EndStmt = 0;          // last byte of the statement text
    int StartRule = 0;        // first byte of the annotation
    int EndRule = 0;          // last byte of the annotation
    int ViewerStartLine = 0;  // while Visible: first byte of the block in the display, 1-based
    KeptText SpecName;        // rule 3: the name brought in; of rule 4 without meaning
    KeptText FreeVars;        // name list: the free variables
    KeptText FixedVars;  // name list: those of them already in use outside the innermost premise
    KeptText SpareVars;  // name list: drawn bold; the writer leaves it ""

    bool operator==(const Statement&) const = default;
};

// The bytes of a text, as the indexes count them.
inline int Length(std::string_view text) {
    return static_cast<int>(text.size());
}

int Depth(const Statement& stmt);
// Bytes of the block, the CR LF CR LF behind it included.
int BlockLength(const Statement& stmt);
// What to take from an index of ProofText inside a visible block to get its place in the display.
int ViewOffset(const Statement& stmt);
// First digit of the statement's number, 1-based in ProofText.
int NumberStart(const Statement& stmt);
// Last byte of the block's annotation in the display, 1-based; the block must be visible.
int ViewerEndRule(const Statement& stmt);
// Adds to the six indexes into ProofText (to EndUserComment only if there is a comment).
void ShiftIndexes(Statement& stmt, int shift);

// "Join, 3, 4": the annotation of a statement with that rule and those references.
std::string RuleAnnotation(int rule, int arg1, int arg2);
void AppendRuleAnnotation(std::string& text, int rule, int arg1, int arg2);
void AppendNumber(std::string& text, int number);  // in decimal

inline bool IsClosedPremise(const Statement& stmt) {
    return stmt.Rule == 1 && stmt.Arg1 > 0;
}
inline bool IsOpenPremise(const Statement& stmt) {
    return stmt.Rule == 1 && stmt.Arg1 == 0;
}
inline bool IsConclusion(const Statement& stmt) {
    return stmt.Rule == 7;
}

}  // namespace tessaryn
