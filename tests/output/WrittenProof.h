// Proofs for the tests of what is put out, written record by record.
#pragma once

#include <string>

#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {

inline void StartProof(const std::string& caption = "", const std::string& introduction = "") {
    StartHeadless();
    ProofCaption = caption;
    IntroEnd = static_cast<int>(introduction.size());
    if (IntroEnd > 0) ProofText = introduction + "\r\n\r\n";
}

// Appends a statement as the writer would have left it. The text holds "\r\n\t" at its line breaks.
inline void AddLine(const std::string& text, int rule, const std::string& comment = "",
                    int depth = 0, int arg1 = 0) {
    const auto end = [] { return static_cast<int>(ProofText.size()); };
    const std::string indent(static_cast<std::size_t>(depth), '\t');
    Statement stmt;
    stmt.Rule = rule;
    stmt.Arg1 = arg1;
    stmt.StartLine = end() + 1;
    if (!comment.empty()) {
        ProofText += indent + comment;
        stmt.EndUserComment = end();
        ProofText += "\r\n\r\n";
    }
    ProofText += indent + std::to_string(++StmtCount) + "\t";
    stmt.StartStmt = end() + 1;
    ProofText += text;
    stmt.EndStmt = end();
    ProofText += "\r\n\t" + indent;
    stmt.StartRule = end() + 1;
    ProofText += RuleAnnotation(rule, arg1, 0);
    stmt.EndRule = end();
    ProofText += "\r\n\r\n";
    stmt.Visible = depth == 0;
    StmtTable.Append(stmt);
}

// Line 1 is folded away under its Conclusion, line 2.
inline void WriteSmallProof() {
    StartProof("On < and é", "Über s & t: x @ s");
    AddLine("x @ s & y<x", Rule::Premise, "Let x > y", 1, 2);
    AddLine("x @ s & y<x =>\r\n\ty<x", Rule::Conclusion, "", 0, 1);
}

}  // namespace tessaryn
