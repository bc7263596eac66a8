#include "cli/FoldPage.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "check/Check.h"
#include "cli/FoldPageParts.h"
#include "cli/OnOneLine.h"
#include "cli/Sha256.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "platform/Files.h"
#include "text/Encoding.h"

namespace tessaryn {

namespace {

constexpr std::size_t DeepestFold = 100;  // browsers give up on markup that is nested too deep
constexpr int LongestSummary = 60;        // characters of a premise whose block is folded

void Escape(std::string& page, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '&':
                page += "&amp;";
                break;
            case '<':
                page += "&lt;";
                break;
            case '>':
                page += "&gt;";
                break;
            case '"':
                page += "&quot;";
                break;
            case '@':
                page += "&#949;";
                break;
            case '\r':
                break;
            default:
                page += c;
        }
    }
}

void AppendNumber(std::string& page, std::string_view around, int number, std::string_view behind) {
    page += around;
    page += std::to_string(number);
    page += behind;
}

class Page {
  public:
    Page() : proof_(check::CheckProof(WriteProof())) {
        page_.reserve(ProofText.size() * 2 + static_cast<std::size_t>(StmtCount) * 250);
        AppendHead();
        for (int line = 1; line <= StmtCount; ++line) {
            if (!blocks_.empty() && blocks_.back() == line) EndBlock();
            AppendStatement(line);
        }
        while (!blocks_.empty()) EndBlock();
        page_ += "</main>\n<aside id=\"grounds\" aria-live=\"polite\" hidden></aside>\n<script>";
        page_ += FoldPageScript;
        page_ += "</script>\n</body>\n</html>\n";
    }

    std::string Take() { return ToUtf8(std::move(page_)); }

  private:
    bool Accepted() const { return proof_.verdict == check::Verdict::Accepted; }

    void AppendHead() {
        page_ +=
            "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
            "base-uri 'none'; form-action 'none'; style-src 'sha256-";
        page_ += Sha256InBase64(FoldPageStyle) + "'; script-src 'sha256-";
        page_ += Sha256InBase64(FoldPageScript) + "'\">\n";
        page_ +=
            "<meta name=\"viewport\" content=\"width=device-width\">\n"
            "<meta name=\"generator\" content=\"Tessaryn " TESSARYN_VERSION "\">\n<title>";
        Escape(page_, ProofCaption.empty() ? "Untitled" : ProofCaption);
        page_ += "</title>\n<style>";
        page_ += FoldPageStyle;
        page_ += "</style>\n</head>\n<body>\n<main>\n";
        AppendElement("<h1>", ProofCaption, "</h1>\n");
        AppendVerdict();
        if (IntroEnd > 0) AppendElement("<p class=\"words\">", ProofSlice(1, IntroEnd), "</p>\n");
        page_ +=
            "<p class=\"tools\" hidden><button id=\"fold\">Fold all</button>"
            "<button id=\"unfold\">Unfold all</button></p>\n";
    }

    // Nothing if the text is empty.
    void AppendElement(std::string_view start, std::string_view text, std::string_view end) {
        if (text.empty()) return;
        page_ += start;
        Escape(page_, text);
        page_ += end;
    }

    void AppendVerdict() {
        page_ += Accepted() ? "<p class=\"verdict accepted\">" : "<p class=\"verdict\">";
        page_ += "Checked by Tessaryn " TESSARYN_VERSION " when this page was made: ";
        if (Accepted() && StmtCount > 0) {
            AppendNumber(page_, "each line follows from those that it names. Line ", StmtCount,
                         ": ");
        }
        Escape(page_, Summary(proof_) + ".");
        page_ += "</p>\n";
    }

    // A block lies within the one around it, whatever a file says.
    bool BeginsBlock(int line) const {
        const Statement& stmt = StmtTable[line];
        return IsClosedPremise(stmt) && stmt.Arg1 > line && blocks_.size() < DeepestFold &&
               (blocks_.empty() || stmt.Arg1 < blocks_.back());
    }

    void BeginBlock(int line) {
        const Statement& stmt = StmtTable[line];
        blocks_.push_back(stmt.Arg1);
        page_ += stmt.Visible ? "<details open><summary>" : "<details><summary>";
        AppendNumber(page_, "Lines ", line, "");
        AppendNumber(page_, " to ", stmt.Arg1 - 1, "");
        AppendElement("<span>: ", Shortened(StmtText(line), LongestSummary), "</span>");
        page_ += "</summary>\n";
    }

    void EndBlock() {
        blocks_.pop_back();
        page_ += "</details>\n";
    }

    void AppendStatement(int line) {
        if (BeginsBlock(line)) BeginBlock(line);
        const Statement& stmt = StmtTable[line];
        if (stmt.EndUserComment > 0) {
            std::string comment(ProofSlice(stmt.StartLine, stmt.EndUserComment));
            RemoveTabs(comment);
            AppendElement("<p class=\"words\">", comment, "</p>\n");
        }
        AppendNumber(page_, "<div class=\"line\" id=\"line", line, "\"");
        if (Accepted()) AppendGrounds(line);
        AppendNumber(page_, "><a class=\"number\" href=\"#line", line, "\">");
        AppendNumber(page_, "", line, "</a><span class=\"statement\">");
        Escape(page_, StmtText(line));
        page_ += "</span><span class=\"rule\">";
        AppendAnnotation(stmt);
        page_ += "</span></div>\n";
    }

    // The numbers in it lead to their lines.
    void AppendAnnotation(const Statement& stmt) {
        const int triangle = IsConclusion(stmt) ? 2 : 0;  // it and its blank
        const std::string_view text = ProofSlice(stmt.StartRule + triangle, stmt.EndRule);
        const std::string written = RuleAnnotation(stmt.Rule, stmt.Arg1, stmt.Arg2);
        const bool isItsOwn = ProofSlice(stmt.StartRule, stmt.EndRule) == written;
        const std::size_t name = isItsOwn ? std::min(text.find(", "), text.size()) : text.size();
        Escape(page_, text.substr(0, name));
        if (name == text.size()) return;
        for (const int reference : {stmt.Arg1, stmt.Arg2}) {
            if (reference == 0) continue;
            AppendNumber(page_, ", <a href=\"#line", reference, "\">");
            AppendNumber(page_, "", reference, "</a>");
        }
    }

    // What the script needs to tell what any line rests on.
    void AppendGrounds(int line) {
        AppendNumbers("from", proof_.Sources(line));
        if (const auto ground = proof_.OwnGround(line)) {
            AppendElement(" data-ground=\"", Worded(*ground), "\"");
        }
        if (const int end = proof_.DischargedIn(line); end != 0) {
            AppendNumber(page_, " data-until=\"", end, "\"");
        }
        std::vector<int> choices;
        for (const check::Ground& witness : proof_.WitnessesOf(line)) {
            choices.push_back(witness.line);
        }
        AppendNumbers("speaks", choices);
        if (StmtTable[line].Rule == Rule::ESpec) {
            const check::Ground choice = {check::Ground::Kind::Witness, line,
                                          std::string(std::string_view(StmtTable[line].SpecName))};
            AppendElement(" data-choice=\"", Worded(choice), "\"");
        }
    }

    void AppendNumbers(std::string_view name, const std::vector<int>& numbers) {
        if (numbers.empty()) return;
        page_ += " data-";
        page_ += name;
        const char* between = "=\"";
        for (const int number : numbers) {
            page_ += std::exchange(between, " ") + std::to_string(number);
        }
        page_ += '"';
    }

    check::CheckedProof proof_;
    std::string page_;
    std::vector<int> blocks_;  // under way, by their Conclusions
};

}  // namespace

std::string FoldPage() {
    return Page().Take();
}

std::string SaveFoldPage(const std::string& path) {
    return ReplaceFile(path, FoldPage());
}

}  // namespace tessaryn
