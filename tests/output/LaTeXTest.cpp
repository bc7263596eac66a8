// The LaTeX document: how statements and words stand in it, and that it compiles whatever they
// hold.
#include <gtest/gtest.h>

#include <cstdlib>

#include "OwnDirectory.h"
#include "WrittenProof.h"
#include "output/LaTeX.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

// What stands behind the last "\quad}", that is the width of the numbers, and ahead of the end.
std::string Body() {
    const std::string tex = LaTeXDocument();
    const std::size_t start = tex.find('\n', tex.rfind("\\quad}")) + 1;
    return tex.substr(start, tex.rfind("\\end{document}") - start);
}

TEST(LaTeX, HoldsCaptionIntroductionCommentsAndHiddenLines) {
    WriteSmallProof();
    EXPECT_EQ(Body(),
              "\\proofcaption{On \\textless{} and é}\n"
              "\\begin{introduction}\n\\prooftext{0}{Über s \\& t: x \\(\\in\\) s}\n"
              "\\end{introduction}\n"
              "\\prooftext{1}{Let x \\textgreater{} y}\n"
              "\\proofline{1}{1}{\\(x\\in s\\AND y<x\\)}{Premise}\n"
              "\\proofline{0}{2}{\\(x\\in s\\AND y<x\\IMPLIES \\)\\par\\(y<x\\)}{Conclusion, 1}\n");
}

TEST(LaTeX, StatementsAreMathematics) {
    const std::pair<const char*, const char*> rows[] = {
        {"ALL(x):EXIST(y2):[~P | Q <=> R]", R"(\ALL{x}\EXIST{\mathit{y2}}[\lnot P\OR Q\IFF R])"},
        {"Even(x') & a'b=12", R"(\mathit{Even}(x')\AND a'b=12)"},
        {"a<=b & b>=_c*d/e-f", R"(a\leq b\AND b\geq {-}c\cdot d/e-f)"},
        {"ALL & EXIST(P)", R"(\forall \AND \exists (P))"},  // from a damaged file
        {"x#=é}", R"(x\#=\mbox{é}\mbox{\}})"},
        // Powers: high if none can be taken for another.
        {"x^2=(a+b)^n", "x^{2}=(a+b)^{n}"},
        {"x^(y+1)=x^y*x", R"(x^{y+1}=x^{y}\cdot x)"},
        {"a^b^c=x^2", R"(a\caret b\caret c=x\caret 2)"},
        {"x^(y^z)=x^f(y)", R"(x\caret (y\caret z)=x\caret f(y))"},
        {"x^(a+b", R"(x\caret (a+b)"},
        {"x^", R"(x\caret )"},
    };
    for (const auto& [text, tex] : rows) {
        StartProof();
        AddLine(text, Rule::Premise);
        EXPECT_EQ(Body(), "\\proofline{0}{1}{\\(" + std::string(tex) + "\\)}{Premise}\n");
    }
}

// What anybody could enter to break the document, or to run off the paper.
void WriteHostileProof() {
    std::string ascii;
    for (char c = '\x01'; c < '\x7F'; ++c) ascii += c;
    const std::string words =
        ascii + ascii + "\x7F -- '' ,, ?` \\end{document}\\input{x} \\\\[1] %\n" +
        "«ß» é ą Ж 日本 😀 ∀ℵ \xC2\x85\xEF\xBB\xBF e\xCC\x81 " + std::string(500, 'W');
    StartProof(words, "\r\n   " + words + "\r\n\r\n[x] * \\");
    std::string chain = "P";
    for (int i = 0; i < 2000; ++i) chain += " & Q" + std::to_string(i);
    std::string nested = std::string(300, 'n') + "''=x";
    for (int i = 0; i < 200; ++i) nested = "~f(" + nested + ",y)";
    for (const std::string& text :
         {chain, nested, std::string(400, '~') + "P", words, std::string(300, '\'')}) {
        AddLine(text, Rule::Premise, words, 1);
        AddLine(text, Rule::Conclusion, "", 0, 1);
    }
    for (int i = 0; i < 120; ++i) AddLine("x'@s", Rule::Join, "", 100 + i, 32767);
}

class LaTeXFile : public OwnDirectory {};

TEST_F(LaTeXFile, CompilesWhateverItHoldsAndStaysOnThePaper) {
    if (std::system("command -v pdflatex >/dev/null") != 0) GTEST_SKIP() << "there is no pdflatex";
    const auto compiled = [&] {
        EXPECT_EQ(SaveLaTeX(Path("proof.tex")), "");
        return std::system(("cd '" + directory.string() + "' && pdflatex -halt-on-error " +
                            "-interaction=nonstopmode proof.tex >output 2>&1")
                               .c_str());
    };
    StartProof();
    EXPECT_EQ(compiled(), 0) << ReadWholeFile(Path("output")).value_or("");
    WriteHostileProof();
    EXPECT_EQ(compiled(), 0);
    const std::string log = ReadWholeFile(Path("proof.log")).value_or("");
    EXPECT_NE(log.find("Output written on proof.pdf ("), log.npos) << log;
    for (const char* fault : {"Overfull", "Missing character"}) {
        EXPECT_EQ(log.find(fault), log.npos)
            << log.substr(std::min(log.size(), log.find(fault)), 400);
    }
}

}  // namespace
}  // namespace tessaryn
