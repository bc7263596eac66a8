#include "cli/CheckFiles.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/Ink.h"
#include "cli/Library.h"
#include "document/ProofFile.h"
#include "platform/InputFile.h"

namespace tessaryn {

namespace {

using nlohmann::json;

constexpr int Refused = 1;
constexpr int Declined = 2;

// A file that is reported on.
struct Report {
    const std::string& file;
    const check::CheckedProof& proof;
    const Library& library;
};

// "proved" or "rests on ..."
std::string Worded(const std::vector<Basis>& bases) {
    std::string worded;
    for (const Basis& basis : bases) worded += (worded.empty() ? "rests on " : ", ") + basis.worded;
    return worded.empty() ? "proved" : worded;
}

std::string Worded(const Report& report, int line) {
    std::string circle;
    return Worded(report.library.BasesOf(report.proof, line, circle));
}

// Why an accepted proof is refused all the same; "" if it isn't.
std::string Circle(const Report& report) {
    const check::CheckedProof& proof = report.proof;
    std::string circle;
    if (proof.Count() > 0) report.library.BasesOf(proof, proof.Count(), circle);
    return circle.empty() ? "" : "theorems rest on themselves: " + circle;
}

json BasesAsJson(const Report& report, int line) {
    std::string circle;
    json bases = json::array();
    for (const Basis& basis : report.library.BasesOf(report.proof, line, circle)) {
        bases.push_back(
            {{"kind", KindName(basis.kind)}, {"line", basis.line}, {"text", basis.text}});
    }
    return bases;
}

std::string AsJson(const Report& report, const std::string& circle, bool allLines) {
    static const char* const verdicts[] = {"accepted", "refused", "declined"};
    const check::CheckedProof& proof = report.proof;
    const bool accepted = proof.verdict == check::Verdict::Accepted && circle.empty();
    const int verdict = circle.empty() ? static_cast<int>(proof.verdict) : Refused;
    json object = {{"file", report.file},
                   {"verdict", verdicts[verdict]},
                   {"line", proof.faultyLine},
                   {"reason", circle.empty() ? proof.sentence : circle},
                   {"statements", json::array()}};
    for (int line = 1; accepted && line <= proof.Count(); ++line) {
        if (!allLines && !proof.InForce(line)) continue;
        object["statements"].push_back({{"line", line},
                                        {"text", proof.Text(line)},
                                        {"rule", proof.Annotation(line)},
                                        {"inForce", proof.InForce(line)},
                                        {"restsOn", BasesAsJson(report, line)}});
    }
    return object.dump(-1, ' ', false, json::error_handler_t::replace);
}

// What is to be said of the file as a whole.
std::string InShort(const Report& report, const std::string& circle) {
    if (!circle.empty()) return "wrong: " + circle;
    const bool accepted = report.proof.verdict == check::Verdict::Accepted;
    const int count = accepted ? report.proof.Count() : 0;
    return count > 0 ? Worded(report, count) : Summary(report.proof);
}

void PrintLines(const Report& report, std::ostream& out) {
    for (int line = 1; line <= report.proof.Count(); ++line) {
        out << report.file << ':' << line << ": " << report.proof.Text(line) << ": "
            << Worded(report, line) << '\n';
    }
}

Ink InkOf(const Report& report, const std::string& circle) {
    if (!circle.empty() || report.proof.verdict == check::Verdict::Refused) return Ink::Bad;
    return report.proof.verdict == check::Verdict::Declined ? Ink::Doubtful : Ink::Good;
}

int Status(check::Verdict verdict) {
    switch (verdict) {
        case check::Verdict::Accepted:
            return 0;
        case check::Verdict::Refused:
            return Refused;
        case check::Verdict::Declined:
            return Declined;
    }
    return Declined;
}

}  // namespace

std::optional<std::string> ReadBeginning(const std::string& path, std::uint64_t most) {
    InputFile file(path);
    if (!file.Good()) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(std::min(file.Size(), most)), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t count = file.Read(bytes.data() + length, bytes.size() - length);
        if (count == 0) break;
        length += count;
    }
    bytes.resize(length);
    return bytes;
}

std::optional<check::CheckedProof> CheckFile(const std::string& path) {
    auto bytes = ReadBeginning(path, MaxProofFile);
    if (!bytes) return std::nullopt;
    return check::CheckProof(std::move(*bytes));
}

int CheckFiles(const CheckRequest& request, std::ostream& out, std::ostream& err) {
    const Library library =
        request.library.empty() ? Library() : Library(request.library, request.jobs);
    for (const std::string& fault : library.Faults()) err << fault << '\n';
    bool refused = false;
    int status = 0;
    for (const std::string& file : request.files) {
        const auto proof = CheckFile(file);
        if (!proof) {
            err << Ink::Bad << file << Ink::Plain << ": the file can't be read\n";
            status = Declined;
            continue;
        }
        const Report report = {file, *proof, library};
        const bool accepted = proof->verdict == check::Verdict::Accepted;
        const std::string circle = accepted ? Circle(report) : "";
        refused = refused || proof->verdict == check::Verdict::Refused || !circle.empty();
        status = std::max(status, Status(proof->verdict));
        if (request.asJson) {
            out << AsJson(report, circle, request.allLines) << '\n';
            continue;
        }
        out << file << ": " << InkOf(report, circle) << InShort(report, circle) << Ink::Plain
            << '\n';
        if (request.allLines && accepted && circle.empty()) PrintLines(report, out);
    }
    return refused ? Refused : status;
}

int ListTheorems(const CheckRequest& request, std::ostream& out, std::ostream& err) {
    const Library library(request.library, request.jobs);
    for (const std::string& fault : library.Faults()) err << fault << '\n';
    int status = library.Faults().empty() ? 0 : Refused;
    for (const Library::Theorem& theorem : library.Theorems()) {
        const Report report = {theorem.file, theorem.proof, library};
        const std::string circle = Circle(report);
        if (!circle.empty()) status = Refused;
        out << theorem.file << ": " << theorem.proof.Text(theorem.proof.Count()) << ": "
            << InShort(report, circle) << '\n';
    }
    return status;
}

}  // namespace tessaryn
