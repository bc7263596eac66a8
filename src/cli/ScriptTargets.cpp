#include "cli/ScriptTargets.h"

#include "cli/FormState.h"
#include "document/Document.h"
#include "expr/Lex.h"
#include "mainwindow/Proof.h"
#include "text/TextSteps.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

std::string LineName(int line) {
    return "line " + std::to_string(line);
}

const Statement& ShownLine(int line) {
    RequireLine(line);
    const Statement& stmt = StmtTable[line];
    if (!stmt.Visible) throw ActionFailed{LineName(line) + " is not shown"};
    return stmt;
}

// index: 1-based in ProofText, inside the block of a shown statement.
int DisplayPosition(const Statement& stmt, int index) {
    return index - ViewOffset(stmt) - 1;
}

// The K at the end of a target: which of several places is meant, 1 if it is left out.
int TakeCount(Arguments& arguments) {
    if (arguments.Empty()) return 1;
    const int count = arguments.Number();
    if (count < 1) throw ActionFailed{"places are counted from 1"};
    return count;
}

[[noreturn]] void NoSuchPlace(const std::string& where, const std::string& text, int count) {
    const std::string which = count == 1 ? "" : " number " + std::to_string(count);
    throw ActionFailed{where + " has no " + Quoted(text) + which};
}

// 0-based start of the count-th place where text stands, overlapping places counted.
std::size_t FindPlace(const std::string& content, const std::string& text, int count,
                      const std::string& where) {
    if (text.empty()) throw ActionFailed{"an empty text stands nowhere"};
    std::size_t at = content.find(text);
    for (int found = 1; found < count && at != std::string::npos; ++found) {
        at = content.find(text, at + 1);
    }
    if (at == std::string::npos) NoSuchPlace(where, text, count);
    return at;
}

// 1-based byte in the statement's stored text.
int TokenPosition(int line, const std::string& written, int count) {
    const Expression stored = LexExpression(std::string(StoredText(line)));
    const std::string& source = stored.text;
    int found = 0;
    for (const TokenRec& token : stored.tokens) {
        if (token.Position == 0) continue;
        const auto start = static_cast<std::size_t>(token.Position - 1);
        if (source.compare(start, token.Token.size(), written) != 0) continue;
        if (++found == count) return token.Position;
    }
    NoSuchPlace(LineName(line), written, count);
}

int ClickIndex(const Statement& stmt, int line, Arguments& arguments) {
    if (arguments.Empty()) return stmt.StartStmt;
    if (arguments.TextFollows()) {
        const std::string token = WithElementSign(arguments.Text());
        return stmt.StartStmt + TokenPosition(line, token, TakeCount(arguments)) - 1;
    }
    if (arguments.Take("number")) return NumberStart(stmt);
    if (arguments.Take("rule")) return stmt.StartRule;
    if (!arguments.Take("comment")) throw ActionFailed{"no such target: " + arguments.Word()};
    if (stmt.EndUserComment == 0) throw ActionFailed{LineName(line) + " has no comment"};
    return stmt.StartLine;
}

}  // namespace

void RequireLine(int line) {
    if (line < 1 || line > StmtCount) throw ActionFailed{"there is no " + LineName(line)};
}

int ClickTarget(Arguments& arguments) {
    int position = 0;
    if (arguments.Take("at")) {
        position = arguments.Number();
        if (position < 0 || position > Proof.RTB.TextLength()) {
            throw ActionFailed{"the display has no position " + std::to_string(position)};
        }
    } else if (!arguments.Take("intro")) {
        const int line = arguments.Number();
        const Statement& stmt = ShownLine(line);
        position = DisplayPosition(stmt, ClickIndex(stmt, line, arguments));
    }
    arguments.End();
    return position;
}

Place SelectTarget(Arguments& arguments) {
    const int line = arguments.Number();
    const Statement& stmt = ShownLine(line);
    const std::string text = WithCrLf(WithElementSign(arguments.Text()));
    const int count = TakeCount(arguments);
    arguments.End();

    // The text that a script sees has no TABs; behind[i] is where its byte i stands as stored.
    const std::string_view stored = StoredText(line);
    std::string content;
    std::vector<int> behind;
    for (std::size_t at = 0; at < stored.size(); ++at) {
        if (stored[at] == '\t') continue;
        content += stored[at];
        behind.push_back(static_cast<int>(at));
    }
    const std::size_t found = FindPlace(content, text, count, LineName(line));
    const int first = behind[found];
    const int last = behind[found + text.size() - 1];
    return {DisplayPosition(stmt, stmt.StartStmt + first), last - first + 1};
}

int PickTarget(RichTextBox& box, Arguments& arguments) {
    const std::string text = WithCrLf(WithElementSign(arguments.Text()));
    const int count = TakeCount(arguments);
    arguments.End();
    return static_cast<int>(FindPlace(BoxText(box), text, count, "the statement"));
}

}  // namespace tessaryn
