#include <algorithm>
#include <string_view>
#include <utility>

#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "output/HTML.h"
#include "output/ProofCommands.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "text/Encoding.h"
#include "text/Utf8.h"

namespace tessaryn {
namespace {

constexpr std::string_view Blue = R"(<font size="3" face="Courier New" color="#000096">)";
constexpr std::string_view Black = R"(<font size="3" face="Courier New" color="#000000">)";
constexpr std::string_view Grey = R"(<font size="3" face="Courier New" color="#808080">)";
constexpr std::string_view EndRun = "</font>";

constexpr const char* MarkupInCaption =
    "The caption holds \"<\" and stands in the page as it is: a browser may take part of it for "
    "markup.";

void AppendEscaped(std::string& page, std::string_view text) {
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find_first_of("<>@"), text.size());
        page += text.substr(0, plain);
        if (plain == text.size()) return;
        page += text[plain] == '<' ? "&lt;" : text[plain] == '>' ? "&gt;" : "&#949;";
        text.remove_prefix(plain + 1);
    }
}

void AppendRun(std::string& page, std::string_view font, std::string_view text) {
    page += font;
    AppendEscaped(page, text);
    page += EndRun;
}

void AppendHead(std::string& page) {
    page += "<html><head><title>";
    page += ProofCaption.empty() ? "Untitled" : ProofCaption;
    page += "</title></head><body><pre>";
    if (ProofCaption.empty()) return;
    page += Blue;
    page += "<b>" + ProofCaption + "</b>";
    page += EndRun;
    page += "\r\n\r\n";
}

void AppendStatement(std::string& page, const Statement& stmt) {
    int start = stmt.StartLine;
    if (stmt.EndUserComment > 0) {
        AppendRun(page, Blue, ProofSlice(start, stmt.EndUserComment));
        start = stmt.EndUserComment + 1;
    }
    AppendRun(page, Black, ProofSlice(start, stmt.EndStmt));
    page += Grey;
    if (IsConclusion(stmt)) {  // without the triangle and its blank
        page += ProofSlice(stmt.EndStmt + 1, stmt.StartRule - 1);
        page += ProofSlice(stmt.StartRule + 2, stmt.EndRule + 4);
    } else {
        page += ProofSlice(stmt.EndStmt + 1, stmt.EndRule + 4);
    }
    page += EndRun;
}

// Characters outside ASCII as numeric references, so that a browser needs to know no encoding.
std::string InAscii(std::string page) {
    std::size_t at = AsciiEnd(page, 0);
    if (at == page.size()) return page;
    std::string ascii = page.substr(0, at);
    while (at < page.size()) {
        const Utf8Char character = DecodeAt(page, at);
        ascii += "&#" + std::to_string(character.code) + ";";
        at += static_cast<std::size_t>(std::max(1, character.length));
        const std::size_t end = AsciiEnd(page, at);
        ascii.append(page, at, end - at);
        at = end;
    }
    return ascii;
}

// Between these the user sees that work is going on.
struct Busy {
    Busy() {
        RefreshNow(Proof);
        Proof.MousePointer = Pointer::Hourglass;
        SetPrompt("Please wait...");
        RefreshNow(Proof);
    }
    ~Busy() { Proof.MousePointer = Pointer::Default; }
};

std::string SaveHTMLWithHourglass(const std::string& path) {
    const Busy busy;
    return SaveHTML(path);
}

}  // namespace

std::string HTMLPage() {
    std::string page;
    page.reserve(ProofText.size() * 2 + static_cast<std::size_t>(StmtCount) * 160);
    AppendHead(page);
    if (IntroEnd > 0) AppendRun(page, Blue, ProofSlice(1, IntroEnd + 4));
    for (int line = 1; line <= StmtCount; ++line) {
        AppendStatement(page, StmtTable[line]);
    }
    page += "</pre></body></html>";
    return InAscii(ToUtf8(std::move(page)));
}

std::string SaveHTML(const std::string& path) {
    std::string fault = ReplaceFile(path, HTMLPage() + "\r\n");
    if (fault.empty() && ProofCaption.find('<') != ProofCaption.npos) Tell(MarkupInCaption);
    return fault;
}

void HTMLCommand() {
    const std::string prompt = Proof.StatusLine.GetText();
    SetPrompt("");
    CommonDialog& dialog = Proof.CommonDialog1;
    if (!dialog.FileName.empty()) dialog.FileName = WithExtension(dialog.FileName, "html");
    CommonDialog choice{dialog.FileName, "HTML (*.html)|*.html", DefaultDir, true,
                        false,           "Make HTML File"};
    OperationCancelled = true;
    AskWhereToSave(choice, [prompt](const ChosenFile& path) {
        if (!path) return;
        OperationCancelled = false;
        Proof.CommonDialog1.FileName = *path;
        const std::string fault = SaveHTMLWithHourglass(*path);
        SetPrompt(prompt);
        if (fault.empty()) return;
        Beep(fault);
        MsgBox({"Unable to save HTML file", "WARNING"});
    });
}

}  // namespace tessaryn
