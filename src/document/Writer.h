// What writes into a document: new statements, and the indentation of a block that closes.
#pragma once

#include <string>
#include <vector>

#include "document/Document.h"

namespace tessaryn {

struct NewStatement {
    int rule;
    int arg1;  // line numbers as they are ahead of the new statements; 0 none
    int arg2;
    std::string specName;  // of E Spec and U Spec, else ""
    std::string text;      // canonical
    std::string freeVars;  // name list of the text's free variables
};

// Enters statements one behind the other from `line` on, which is at most one behind the last; what
// stands there moves down and is renumbered, in one pass over the text. At the end nothing is
// copied. There must be room for them.
void EnterStatements(Document& document, int line, const std::vector<NewStatement>& stmts);

// Puts one more TAB in front of every line of the blocks first to last, in one pass over the text.
void IndentStatements(int first, int last, Document& document = Doc);

}  // namespace tessaryn
