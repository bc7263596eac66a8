// Proof files put together field by field, so that any of them can be wrong.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

// What a file holds for a line. What is not given follows from the other lines, as the editor would
// have it.
struct WrittenLine {
    int rule = 0, arg1 = 0, arg2 = 0;
    std::string text;  // of the statement; a line break is "\r\n"
    std::string comment;
    // Fields by their names in Statement.h, and "Number", "Annotation", "Indent" for what stands in
    // the text, "Ahead" and "Behind" around the block, "Between" ahead of the annotation,
    // "Break" for a line break in the statement. Of an
    // index, how far it is off.
    std::map<std::string, std::string> fields;
};
using WrittenLines = std::vector<WrittenLine>;  // line 1 is [0]

// "Detach 1 2: Q", the rule as annotations have it or by its number, references, then the witness
// of an E Spec. "\n" is a line break.
WrittenLine ReadLine(std::string_view notation);

// With line breaks and TABs for "\n" and "\t".
std::string Unescaped(const std::string& text);

// The bytes of the file. A premise is closed by the Conclusion that names it.
std::string FileOf(const WrittenLines& lines);
std::string ProofOf(const std::vector<std::string>& notations);  // the same of notations

// The open proof, with all fields that the file of it would have.
WrittenLines OpenProofLines();

}  // namespace tessaryn
