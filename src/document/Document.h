// The proof in memory: the statement table, the one long text and what goes with them.
#pragma once

#include <string>
#include <string_view>

#include "document/SharedText.h"
#include "document/StatementTable.h"

namespace tessaryn {

inline constexpr int MaxStatements = 32767;

// What a file says is taken as it stands. Whether it agrees with itself is found out when the
// document is first checked; from then on that must not get worse.
enum class ContentState { Agrees, Unknown, Disagrees };

// A value: copies share what has not changed since, so that a snapshot costs next to nothing.
struct Document {
    StatementTable StmtTable;  // statement n at [n], from 1
    int StmtCount = 0;
    SharedText ProofText;
    int IntroEnd = 0;          // length of the introduction in bytes; 0 or negative: none
    std::string ProofCaption;  // "" if none
    ContentState Content = ContentState::Agrees;
};

inline Document Doc;  // the open one

// Its members by their settled names.
inline StatementTable& StmtTable = Doc.StmtTable;
inline int& StmtCount = Doc.StmtCount;
inline SharedText& ProofText = Doc.ProofText;
inline int& IntroEnd = Doc.IntroEnd;
inline std::string& ProofCaption = Doc.ProofCaption;

// Statement n, to be read or to be changed; of the open document where no other is given.
inline const Statement& At(int line, const Document& document = Doc) {
    return document.StmtTable[line];
}
inline Statement& EditAt(int line, Document& document = Doc) {
    return document.StmtTable.Edit(line);
}

// All of the following ask the open document where no other is given.

// Shows or hides a statement; RelayoutViewer and ResetFonts follow.
void SetVisible(int line, bool visible);

// Empties the proof.
void ClearDocument();

// A copy that another thread may read while this one goes on to write. It is to be destroyed here.
Document CopyForAnotherThread();

// Where the first visible block begins in the display, 1-based.
int FirstViewerStartLine(const Document& document = Doc);

// The text between two 1-based indexes of ProofText, both included.
std::string_view ProofSlice(int first, int last, const Document& document = Doc);
// A statement's text as stored, with CR LF TAB at its line breaks.
std::string_view StoredText(int number, const Document& document = Doc);
// A statement's text without TABs: what a rule hands to Parse.
std::string StmtText(int number, const Document& document = Doc);
void RemoveTabs(std::string& text);

// The names of a list that are in use outside the innermost premise around a statement.
std::string FixedNames(const std::string& names, int stmt, const Document& document = Doc);

// Assigns ViewerStartLine to the visible statements.
void RelayoutViewer();

}  // namespace tessaryn
