// Holds the manual to what the program shows and says.
//
// A page has steps (Steps.h) in comments, which its readers don't see; a line break stands for
// " ; ".
//
//   <!-- replay: STEPS -->   begins with an empty proof
//   <!-- then: STEPS -->     goes on
//
// Lines of a proof on a page must stand in the display when the steps ahead of them have been done.
// Refusals in a table must have been said during the page's replays, word for word, and so must
// what stands in double quotes in a lesson. A refusal that ends with "..." may go on, one in
// italics is none of the program's.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "Steps.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

std::string WithBlanks(const std::string& text) {
    std::string expanded;
    std::size_t column = 0;
    for (const char c : text) {
        const std::size_t width = c == '\t' ? 4 - column % 4 : 1;
        expanded.append(width, c == '\t' ? ' ' : c);
        column = c == '\n' ? 0 : column + width;
    }
    return expanded;
}

std::string Squeezed(const std::string& text) {
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

// As it stands inside a string of a dump.
std::string InDump(const std::string& text) {
    return std::regex_replace(text, std::regex(R"(["\\])"), R"(\$&)");
}

class Page {
  public:
    Page(std::istream& lines, bool quotes) {
        for (std::string line; std::getline(lines, line);) Take(lines, line);
        EndReplay();
        for (const std::string& refusal : refusals_) LookForRefusal(refusal);
        if (quotes) LookForQuotations();
    }

    std::string faults;  // "" if the page is right
    int examples = 0;    // lines of a proof, shown together

  private:
    void Take(std::istream& lines, const std::string& line) {
        static const std::string what = "| What it means and what to do |";
        if (line.starts_with("<!-- ")) return Comment(Rest(lines, line, "-->"));
        if (line.starts_with("```")) return Block(Rest(lines, "", "```"));
        prose_ += line + '\n';
        inTable_ = line.starts_with("|") && (inTable_ || line.ends_with(what));
        if (!inTable_ || line.ends_with(what)) return;
        std::smatch cell;
        if (std::regex_search(line, cell, std::regex(R"(^\| ((\\\||[^|])*) \|)"))) {
            refusals_.push_back(std::regex_replace(cell.str(1), std::regex(R"(\\(\W))"), "$1"));
        }
    }

    // What comes up to the line with the end.
    static std::string Rest(std::istream& lines, std::string text, const std::string& end) {
        for (std::string line; text.find(end) == text.npos && std::getline(lines, line);) {
            text += '\n' + line;
        }
        return text.substr(0, text.find(end));
    }

    void Comment(const std::string& text) {
        const auto colon = std::min(text.find(": "), text.find(":\n"));
        if (text.starts_with("<!-- replay")) EndReplay();
        const std::string steps = text.substr(colon + 1);
        std::istringstream script(ScriptOf(std::regex_replace(steps, std::regex("\n"), " ; ")));
        for (std::string action; std::getline(script, action);) {
            script_ += action + '\n';
            if (!action.starts_with("expect")) script_ += "dump\n";
        }
    }

    void Block(const std::string& text) {
        if (!std::regex_search(text, std::regex("\n *[0-9]+ +\\S.*\n +[^0-9 ]"))) return;
        ++examples;
        if (script_.empty()) return Fault("there are no steps for", text);
        script_ += "echo \"<proof>\\n\"\nshow\necho \"</proof>\"\n";
        blocks_.push_back(text);
    }

    void EndReplay() {
        const ScriptResult result = Replay(script_, false);
        if (!result.error.empty()) Fault("", result.error);
        std::size_t at = 0;
        for (const std::string& block : blocks_) {
            at = result.output.find("<proof>", at + 1);
            if (at == result.output.npos) break;
            const auto end = result.output.find("</proof>", at);
            LookForLines(block, WithBlanks(result.output.substr(at, end - at)));
        }
        said_ += result.output;
        script_.clear();
        blocks_.clear();
    }

    void LookForLines(const std::string& block, const std::string& shown) {
        const std::string text = block + '\n';
        for (std::size_t start = 1, end = 0; start < text.size(); start = end + 2) {
            end = std::min(text.find("\n\n", start), text.size() - 1);
            const std::string lines = '\n' + text.substr(start, end - start) + '\n';
            if (shown.find(lines) == shown.npos) Fault("is not shown:" + lines + "but", shown);
        }
    }

    void LookForRefusal(const std::string& refusal) {
        if (refusal.starts_with('*')) return;
        const bool whole = !refusal.ends_with("...");
        const std::string start = refusal.substr(0, refusal.size() - (whole ? 0 : 3));
        const std::string said = '"' + InDump(start) + (whole ? "\"" : "");
        if (said_.find(said) == said_.npos) Fault("is not said:", refusal);
    }

    void LookForQuotations() {
        const std::string said = Squeezed(said_);
        const std::string prose = Squeezed(prose_);
        static const std::regex quotation("\"([^\"]+)\"");
        for (std::sregex_iterator found(prose.begin(), prose.end(), quotation), end; found != end;
             ++found) {
            const std::string text = found->str(1);
            if (said.find(InDump(text)) == said.npos) Fault("is not said:", text);
        }
    }

    void Fault(const std::string& what, const std::string& where) {
        faults += what + ' ' + where + '\n';
    }

    std::string prose_;
    std::string script_;
    std::vector<std::string> blocks_;  // of this replay
    std::vector<std::string> refusals_;
    std::string said_;
    bool inTable_ = false;
};

std::string FaultsOf(const std::string& text) {
    std::istringstream lines(text);
    return Page(lines, true).faults;
}

TEST(ManualPages, AreFoundWrongWhereTheyAre) {
    const std::string proof = "```\n1   P\n    Premise\n```\n";
    const std::string table = "| Note | What it means and what to do |\n|---|---|\n| ";
    const std::string refusal = "Line 1 is no conjunction: Split needs & as its outermost sign.";
    const std::string replay = "<!-- replay: + P\nSplit 1 -->\n";
    EXPECT_EQ(
        FaultsOf(replay + proof + table + refusal + " | a |\n| *b* | c |\nIt says \"needs\n&\"."),
        "");
    EXPECT_NE(FaultsOf(proof), "");
    EXPECT_NE(FaultsOf("<!-- replay: + Q -->\n" + proof), "");
    EXPECT_NE(FaultsOf("<!-- replay: Split -->\n" + proof), "");
    EXPECT_NE(FaultsOf("<!-- replay: Split 1 -->"), "");
    EXPECT_NE(FaultsOf(replay + table + "Line 2" + refusal.substr(6) + " | a |\n"), "");
    EXPECT_NE(FaultsOf(replay + table + "needs | a |\n"), "");
    EXPECT_NE(FaultsOf(replay + "It says \"wants\"."), "");
}

TEST(ManualPages, TellWhatTheProgramShowsAndSays) {
    for (const auto& entry :
         fs::directory_iterator(fs::path(TESSARYN_SOURCE_DIR) / "docs/manual")) {
        if (entry.path().extension() != ".md") continue;
        const std::string name = entry.path().stem();
        const bool lesson = name.starts_with("lesson-") || name == "first-proof";
        std::ifstream file(entry.path());
        const Page page(file, lesson || name == "refused");
        EXPECT_TRUE(page.faults.empty()) << name << ":\n" << page.faults;
        const bool needsExample = lesson || name.starts_with("rule-");
        EXPECT_TRUE(!needsExample || page.examples > 0) << name << " has no example";
    }
}

}  // namespace
}  // namespace tessaryn
