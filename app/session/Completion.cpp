#include "app/session/Completion.h"

#include <algorithm>
#include <memory>

#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "simhost/HostCalls.h"
#include "support/Text.h"
#include "ui/Form.h"

namespace session {

namespace {

std::vector<std::string> Words(const std::string& text) {
    auto line = ParseLine(0, text);
    std::vector<std::string> words;
    if (line)
        for (const auto& token : line->tokens) words.push_back(token.text);
    return words;
}

// The verb the words begin with and how many words its name takes, or null.
std::pair<const Verb*, std::size_t> VerbOf(const std::vector<std::string>& words) {
    for (const auto& verb : AllVerbs())
        if (words.size() > 1 && verb.name == words[0] + " " + words[1]) return {&verb, 2};
    for (const auto& verb : AllVerbs())
        if (verb.name == words[0]) return {&verb, 1};
    return {nullptr, 0};
}

// The usage's placeholder for the argument at `index` ("FORM.CONTROL[(INDEX)]"); the last
// one repeats when it ends in "...".
std::string Placeholder(const Verb& verb, std::size_t nameWords, std::size_t index) {
    std::vector<std::string> parts;
    std::string usage = verb.usage.substr(0, verb.usage.find(" |"));  // the first form of a choice
    for (const auto& part : Words(usage)) parts.push_back(part);
    std::size_t at = nameWords + index;
    if (at < parts.size()) return parts[at];
    if (!parts.empty() && parts.back().ends_with("...")) return parts.back();
    return "";
}

std::vector<std::string> VerbWords(const std::vector<std::string>& words) {
    std::vector<std::string> found;
    for (const auto& verb : AllVerbs()) {
        auto name = Words(verb.name);
        if (words.empty())
            found.push_back(name[0]);
        else if (name.size() == 2 && name[0] == words[0])
            found.push_back(name[1]);
    }
    return found;
}

std::vector<std::string> FormMembers(Session& s, const std::string& placeholder, const std::string& word) {
    std::vector<std::string> found;
    auto dot = word.find('.');
    for (auto* form : s.Platform().LoadedForms()) {
        if (dot == std::string::npos) {
            found.push_back(form->Name() + ".");
            continue;
        }
        if (form->Name() != word.substr(0, dot)) continue;
        if (placeholder.starts_with("FORM.MENU"))
            for (const auto& menu : form->Menus()) found.push_back(form->Name() + "." + menu.Name);
        else
            for (const auto& control : form->Controls())
                found.push_back(form->Name() + "." + control->Name());
    }
    return found;
}

// The occurrences one level below the path typed so far ("Shaft Assembly:1/").
std::vector<std::string> OccurrencePaths(Session& s, std::string word) {
    simhost::HostCalls::Uncounted notTheAddin;  // the shell looking, not the add-in calling
    const bool quoted = !word.empty() && word.front() == '"';
    if (quoted) word.erase(0, 1);
    auto document = s.Host().Application()->ActiveDocument();
    if (!document || document->DocumentType() != host::kAssemblyDocumentObject) return {};
    auto level = document->ComponentDefinition()->Occurrences();
    std::string prefix;
    for (auto slash = word.find('/'); slash != std::string::npos; slash = word.find('/', prefix.size())) {
        std::string name = word.substr(prefix.size(), slash - prefix.size());
        std::shared_ptr<host::ComponentOccurrence> found;
        for (std::int32_t i = 1; i <= level->Count() && !found; ++i)
            if (auto occurrence = level->Item(i); occurrence->Name() == name) found = occurrence;
        if (!found) return {};
        level = found->SubOccurrences();
        prefix = word.substr(0, slash + 1);
    }
    std::vector<std::string> paths;
    for (std::int32_t i = 1; i <= level->Count(); ++i) {
        auto occurrence = level->Item(i);
        bool parent = occurrence->SubOccurrences()->Count() > 0;
        std::string path = prefix + occurrence->Name() + (parent ? "/" : "");
        // A path with a space is quoted whole; a parent's stays open for the next level.
        if (quoted || path.find(' ') != std::string::npos) path = "\"" + path + (parent ? "" : "\"");
        paths.push_back(path);
    }
    return paths;
}

}  // namespace

std::vector<std::string> Completions(Session& session, const std::string& before, const std::string& word) {
    auto words = Words(before);
    std::vector<std::string> candidates;
    if (words.empty() || (words.size() == 1 && !VerbWords(words).empty())) {
        candidates = VerbWords(words);
    } else if (auto [verb, nameWords] = VerbOf(words); verb) {
        std::string placeholder = Placeholder(*verb, nameWords, words.size() - nameWords);
        if (placeholder.starts_with("FORM."))
            candidates = FormMembers(session, placeholder, word);
        else if (placeholder == "FORM")
            for (auto* form : session.Platform().LoadedForms()) candidates.push_back(form->Name());
        else if (placeholder.starts_with("OCCURRENCE-PATH"))
            candidates = OccurrencePaths(session, word);
        else if (placeholder == "[VERB]")
            candidates = VerbWords({});
    }
    std::vector<std::string> matching;
    const std::string typed = support::LCase(word);
    for (const auto& candidate : candidates) {
        std::string bare = candidate.front() == '"' && typed.empty() == false && typed.front() != '"'
                               ? candidate.substr(1)
                               : candidate;
        if (support::LCase(bare).starts_with(typed)) matching.push_back(candidate);
    }
    std::sort(matching.begin(), matching.end());
    matching.erase(std::unique(matching.begin(), matching.end()), matching.end());
    return matching;
}

}  // namespace session
