#include "cli/Sheet.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <system_error>

#include "check/Check.h"
#include "cli/OnOneLine.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "platform/Files.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

constexpr double MostPoints = 1'000'000;

std::string InQuotes(const std::string& text) {
    return '"' + Shortened(text, 60) + '"';
}

// Parses; a name that stands twice in an object is a fault as well. Throws json::exception.
json ParseJson(const std::string& text) {
    std::vector<std::set<std::string>> names;  // of the objects around the place
    return json::parse(text, [&](int, json::parse_event_t event, json& value) {
        if (event == json::parse_event_t::object_start) names.emplace_back();
        if (event == json::parse_event_t::object_end) names.pop_back();
        if (event == json::parse_event_t::key && !names.back().insert(value).second) {
            throw json::other_error::create(
                501, InQuotes(value.get<std::string>()) + " stands twice in one place", nullptr);
        }
        return true;
    });
}

// A statement in the words of a person. error: "" or why it is none.
struct GivenStatement {
    std::string text;  // in standard form
    std::string key;
    std::string error;
};

GivenStatement ReadStatement(const std::string& words) {
    GivenStatement statement;
    const Expression expression = ParseExpression(WithElementSign(words));
    statement.error = expression.error;
    if (!statement.error.empty()) return statement;
    statement.text = PrintExpression(expression);
    statement.key = check::StatementKey(statement.text);
    if (statement.key.empty()) statement.error = "it states nothing that could be proved";
    return statement;
}

// Small letters and figures, and signs as they are, without blanks.
std::string Blurred(const std::string& name) {
    std::string blurred;
    for (const char c : name) {
        if (c != ' ') blurred += static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    }
    return blurred;
}

// The axioms of the menus that a name stands for: "number axioms" for all of those, "definitions".
std::vector<std::string> MenuAxiomsNamed(const std::string& name) {
    std::vector<std::string> meant;
    for (const std::string& axiom : check::MenuAxioms()) {
        const bool isOfGroup = axiom.starts_with(name.substr(0, name.size() - 1) + " ");
        if (axiom == name || (name.ends_with('s') && isOfGroup)) meant.push_back(axiom);
    }
    return meant;
}

// "" or " (did you mean ...?)"
std::string LikelyMeant(const std::string& name) {
    std::vector<std::string> names = check::MenuAxioms();
    names.insert(names.end(), {"number axioms", "group axioms", "ring axioms", "definitions"});
    for (const std::string& axiom : names) {
        if (Blurred(axiom) == Blurred(name)) return " (did you mean " + InQuotes(axiom) + "?)";
    }
    return "";
}

bool IsOneWord(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isalnum(c); });
}

class SheetReader {
  public:
    SheetReader(const std::string& path, int jobs)
        : path_(path), directory_(fs::path(path).parent_path()), jobs_(jobs) {}

    Sheet Read() {
        const auto text = ReadWholeFile(path_);
        if (!text) {
            Fault("the sheet can't be read");
            return std::move(sheet_);
        }
        try {
            ReadAll(ParseJson(*text));
        } catch (const json::exception& fault) {
            const std::string what = fault.what();  // "[json.exception.parse_error.101] ..."
            Fault("the sheet is no good JSON: " + what.substr(what.find("] ") + 2));
        }
        return std::move(sheet_);
    }

  private:
    void Fault(const std::string& reason) {
        sheet_.faults.push_back(path_ + ": " + (place_.empty() ? "" : place_ + ": ") + reason);
    }

    // --- values of an object by name

    void ExpectNames(const json& object, const std::set<std::string>& known) {
        for (const auto& [name, value] : object.items()) {
            if (!known.contains(name)) Fault("there is no " + InQuotes(name) + " in a sheet here");
        }
    }

    std::optional<std::string> Text(const json& object, const char* name, bool needed) {
        const auto at = object.find(name);
        if (at == object.end()) {
            if (needed) Fault(InQuotes(name) + " is missing");
            return std::nullopt;
        }
        const std::string text = at->is_string() ? at->get<std::string>() : "";
        if (!text.empty()) return text;
        Fault(InQuotes(name) + " is no text in quotes");
        return std::nullopt;
    }

    std::vector<std::string> Texts(const json& object, const char* name) {
        const auto at = object.find(name);
        if (at == object.end()) return {};
        const bool good =
            at->is_array() &&
            std::all_of(at->begin(), at->end(), [](const json& one) { return one.is_string(); });
        if (good) return at->get<std::vector<std::string>>();
        Fault(InQuotes(name) + " is no list of texts: [\"...\", \"...\"]");
        return {};
    }

    // --- a sheet

    void ReadAll(const json& object) {
        if (!object.is_object()) return Fault("the sheet is no object: { ... }");
        ExpectNames(object, {"title", "exercises"});
        sheet_.title = Text(object, "title", true).value_or("");
        const auto exercises = object.find("exercises");
        if (exercises == object.end() || !exercises->is_array() || exercises->empty()) {
            return Fault("\"exercises\" is no list of exercises: [{ ... }, { ... }]");
        }
        std::set<std::string> names;
        for (const json& exercise : *exercises) {
            place_ = "exercise " + std::to_string(sheet_.exercises.size() + 1);
            sheet_.exercises.emplace_back();
            ReadExercise(exercise, sheet_.exercises.back());
            if (!names.insert(sheet_.exercises.back().name).second) {
                Fault("another exercise has the same name");
            }
        }
        place_.clear();
    }

    void ReadExercise(const json& object, Exercise& exercise) {
        if (!object.is_object()) return Fault("it is no object: { ... }");
        exercise.name = Text(object, "name", true).value_or(place_);
        place_ = "exercise " + InQuotes(exercise.name);
        ExpectNames(object,
                    {"name", "premises", "goal", "axioms", "library", "points", "solution"});
        ReadGoal(object, exercise);
        for (const std::string& premise : Texts(object, "premises")) {
            const GivenStatement given = ReadStatement(premise);
            if (!given.error.empty()) Fault("premise " + InQuotes(premise) + ": " + given.error);
            Allow(exercise, "the premise " + InQuotes(premise), given);
        }
        for (const std::string& axiom : Texts(object, "axioms")) ReadAxiom(axiom, exercise);
        ReadPoints(object, exercise);
        if (const auto library = Text(object, "library", false)) ReadLibrary(*library, exercise);
        const auto solution = Text(object, "solution", false);
        if (solution) exercise.solution = (directory_ / *solution).string();
    }

    void ReadGoal(const json& object, Exercise& exercise) {
        const auto goal = Text(object, "goal", true);
        if (!goal) return;
        const GivenStatement given = ReadStatement(*goal);
        if (!given.error.empty()) return Fault("goal " + InQuotes(*goal) + ": " + given.error);
        exercise.goal = given.text;
        exercise.goalKey = given.key;
    }

    void Allow(Exercise& exercise, const std::string& what, const GivenStatement& given) {
        if (given.key.empty()) return;
        if (given.key == exercise.goalKey) Fault(what + " is the goal itself");
        exercise.assumable.insert(given.key);
        const std::string menuAxiom = check::MenuAxiomThatReads(given.text);
        if (!menuAxiom.empty()) exercise.menuAxioms.insert(menuAxiom);
    }

    void ReadAxiom(const std::string& axiom, Exercise& exercise) {
        const std::vector<std::string> named = MenuAxiomsNamed(axiom);
        exercise.menuAxioms.insert(named.begin(), named.end());
        if (!named.empty()) return;
        const GivenStatement given = ReadStatement(axiom);
        // Any word is a statement, but one that somebody wants for an axiom is a name misspelt.
        if (!given.error.empty() || IsOneWord(axiom)) {
            const std::string meant = LikelyMeant(axiom);
            const bool isStatement = given.error.empty() || !meant.empty();
            return Fault("the axiom " + InQuotes(axiom) + " is none of the menus" + meant +
                         (isStatement ? "" : ", and no statement: " + given.error));
        }
        Allow(exercise, "the axiom " + InQuotes(axiom), given);
    }

    void ReadPoints(const json& object, Exercise& exercise) {
        const auto points = object.find("points");
        if (points == object.end()) return;
        if (points->is_number()) exercise.points = points->get<double>();
        if (!points->is_number() || exercise.points < 0 || exercise.points > MostPoints) {
            Fault("\"points\" is no number from 0 to 1000000");
        }
    }

    void ReadLibrary(const std::string& name, Exercise& exercise) {
        const std::string directory = (directory_ / name).string();
        std::error_code error;
        if (!fs::is_directory(directory, error)) {
            return Fault("the library " + directory + " is no directory");
        }
        auto& library = libraries_[directory];
        if (library == nullptr) {
            library = std::make_shared<const Library>(directory, jobs_);
            for (const std::string& fault : library->Faults()) sheet_.warnings.push_back(fault);
        }
        exercise.library = library;
    }

    std::string path_;
    fs::path directory_;
    int jobs_;
    std::string place_;  // of the sheet, for faults
    std::map<std::string, std::shared_ptr<const Library>> libraries_;
    Sheet sheet_;
};

}  // namespace

double Sheet::Maximum() const {
    double sum = 0;
    for (const Exercise& exercise : exercises) sum += exercise.points;
    return sum;
}

Sheet ReadSheet(const std::string& path, int jobs) {
    return SheetReader(path, jobs).Read();
}

}  // namespace tessaryn
