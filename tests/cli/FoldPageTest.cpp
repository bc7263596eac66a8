// The page that folds: what it holds, and what a browser makes of it.
#include "cli/FoldPage.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <regex>

#include "OwnDirectory.h"
#include "Workbench.h"
#include "check/Check.h"
#include "cli/Sha256.h"
#include "document/ProofFile.h"
#include "output/WrittenProof.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

TEST(FoldPage, DigestIsThatOfOthers) {
    EXPECT_EQ(Sha256InBase64("abc"), "ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=");
    EXPECT_EQ(Sha256InBase64(std::string(56, 'a')), "s1Q5pKxvCUi21vnjxq8PX1kM4g8b3nCQ73lwaG7Gc4o=");
}

constexpr const char* Hostile =
    "<script>document.body.textContent='run'</script> \"><img src=x onerror=alert(1)> '&lt;"
    "--></style></title><!-- </details> \x01 WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";

// In every place that takes words, also those that only a damaged file can have.
void WriteHostileProof() {
    StartProof(Hostile, Hostile);
    AddLine(Hostile, Rule::Premise, Hostile, 1, 2);
    AddLine("x @ s", Rule::Conclusion, "", 0, 1);
    StmtTable.Edit(2).SpecName = Hostile;
    ProofText += Hostile;
    StmtTable.Edit(2).EndRule += static_cast<int>(std::string(Hostile).size());
}

TEST(FoldPage, HoldsItsOwnMarkupAndNoOther) {
    WriteHostileProof();
    std::string page = FoldPage();
    for (const char* part : {"style", "script"}) {
        const std::size_t start = page.find("<" + std::string(part) + ">");
        const std::string end = "</" + std::string(part) + ">";
        page.erase(start, page.find(end) + end.size() - start);
    }
    const std::regex markup(
        "<!DOCTYPE "
        "html>|</?(html|head|title|body|main|h1|p|button|details|summary|span|div|a|aside|"
        "meta)( (lang|charset|http-equiv|content|name|class|id|href|data-[a-z]+|aria-live)="
        "\"[^\"<>]*\")*( open| hidden)?>");
    EXPECT_EQ(std::regex_replace(page, markup, "").find_first_of("<>"), std::string::npos) << page;
    EXPECT_NE(page.find("x &#949; s"), page.npos);
}

class FoldPageInBrowser : public OwnDirectory {
  protected:
    void SetUp() override {
        if (Browse("about:blank") != 0) GTEST_SKIP() << "there is no chromium that can run here";
    }
    // Leaves the document, as the browser has it in the end, in the file dom. Its exit status.
    int Browse(const std::string& address) const {
        return std::system(("cd '" + directory.string() + "' && timeout 60 chromium --headless " +
                            "--no-sandbox --disable-gpu --disable-dev-shm-usage --dump-dom " +
                            "--window-size=360,700 --user-data-dir=profile \"" + address +
                            "\" >dom 2>errors")
                               .c_str());
    }
    // The document as the browser has it in the end, on a screen as wide as a telephone's.
    std::string Opened(const std::string& page) const {
        WriteFile("page.html", page);
        EXPECT_EQ(Browse("file://$PWD/page.html"), 0) << ReadWholeFile(Path("errors")).value_or("");
        return ReadWholeFile(Path("dom")).value_or("");
    }
    // What a script finds in the page that is let in beside the page's own.
    std::string Found(const std::string& script) const {
        const std::string page = Replaced(FoldPage(), "script-src '", "script-src 'nonce-t' '");
        const std::string dom = Opened(Replaced(
            page, "</body>",
            "<script nonce=\"t\">try { document.body.textContent = (" + script +
                ")() } catch (fault) { document.body.textContent = fault }" + "</script></body>"));
        const std::size_t start = dom.find("<body>") + 6;
        return dom.substr(start, dom.find_first_of("\n<", start) - start);
    }
};

TEST_F(FoldPageInBrowser, WordsStayWordsAndNothingRunsBesideItsOwnScript) {
    WriteHostileProof();
    const std::string dom = Opened(
        Replaced(FoldPage(), "</main>", "<script>document.title = 'let in'</script></main>"));
    EXPECT_EQ(dom.find("<title>let in"), dom.npos);
    EXPECT_NE(dom.find("<p class=\"tools\">"), dom.npos) << "its own script has not run";
    EXPECT_EQ(Found("() => { document.querySelector('.number').click();"
                    "  return [document.querySelectorAll('script, img').length,"
                    "    getComputedStyle(document.querySelector('.line')).display,"
                    "    document.documentElement.scrollWidth <= innerWidth,"
                    "    /not accepted/.test(document.getElementById('grounds').textContent)] }"),
              "2,grid,true,true");
}

// What the checker says of each line, as the page words it.
nlohmann::json GroundsOfAllLines() {
    const check::CheckedProof proof = check::CheckProof(WriteProof());
    nlohmann::json all = nlohmann::json::array();
    for (int line = 1; line <= proof.Count(); ++line) {
        all.push_back(nlohmann::json::array());
        for (const check::Ground& ground : proof.RestsOn(line)) {
            const std::string place = " in line " + std::to_string(ground.line);
            all.back().push_back(Replaced(Replaced(Worded(ground), place, "") + place, "@", "ε"));
        }
    }
    return all;
}

TEST_F(FoldPageInBrowser, TellsWhatEachLineRestsOn) {
    const std::string script = R"(() => {
      for (const [index, grounds] of GROUNDS.entries()) {
        document.querySelector('#line' + (index + 1) + ' .number').click();
        const told = [...document.querySelectorAll('#grounds li')].map(item => item.textContent);
        if (told.join() !== grounds.join()) return 'line ' + (index + 1) + ': ' + told;
      }
      return 'as the checker' })";
    const std::string example =
        *ReadWholeFile(TESSARYN_SOURCE_DIR "/examples/no-set-of-all-ordinary-sets.script");
    ASSERT_EQ(Build(example.substr(0, example.find("\nsave "))), "");
    EXPECT_EQ(Found(Replaced(script, "GROUNDS", GroundsOfAllLines().dump())), "as the checker");
}

TEST_F(FoldPageInBrowser, FoldsAsTheProofDoesAndUnfoldsWhereALinkLeads) {
    WriteSmallProof();  // its block is folded
    AddLine("P", Rule::Premise, "", 1, 4);
    AddLine("P => P", Rule::Conclusion, "", 0, 3);
    StmtTable.Edit(3).Visible = true;
    EXPECT_EQ(Found(R"(() => {
      const open = () => [...document.querySelectorAll('details')].map(block => block.open);
      const states = [open()];
      for (const click of ['#unfold', '#fold', '#line4 .rule', '#line2 .rule a']) {
        document.querySelector(click).click();
        states.push(open());
      }
      const from = [...document.querySelectorAll('.from')].map(line => line.id);
      document.dispatchEvent(new KeyboardEvent('keydown', {key: 'Escape'}));
      return states.join(' ') + ' ' + from + ' ' + document.querySelectorAll('.from').length })"),
              "false,true true,true false,false false,false true,false line3 0");
}

}  // namespace
}  // namespace tessaryn
