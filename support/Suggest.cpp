#include "support/Suggest.h"

#include <algorithm>

#include "support/Text.h"

namespace support {

namespace {

// Edits from a to b, a swap of two neighbours counting as one (optimal string alignment).
std::size_t EditDistance(const std::string& a, const std::string& b) {
    std::vector<std::vector<std::size_t>> d(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) d[i][0] = i;
    for (std::size_t j = 0; j <= b.size(); ++j) d[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i)
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t cost = a[i - 1] == b[j - 1] ? 0 : 1;
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
        }
    return d[a.size()][b.size()];
}

std::size_t Allowed(const std::string& word) {
    return word.size() <= 4 ? 1 : word.size() <= 8 ? 2 : 3;
}

}  // namespace

std::string ClosestMatch(const std::string& word, const std::vector<std::string>& candidates) {
    const std::string lower = LCase(word);
    std::string best;
    std::size_t bestDistance = Allowed(word) + 1;
    for (const auto& candidate : candidates) {
        std::size_t distance = EditDistance(lower, LCase(candidate));
        if (distance < bestDistance) {  // the first of equals wins: candidates come in a useful order
            best = candidate;
            bestDistance = distance;
        }
    }
    return best;
}

std::string DidYouMean(const std::string& word, const std::vector<std::string>& candidates) {
    std::string match = ClosestMatch(word, candidates);
    return match.empty() ? "" : " (did you mean " + match + "?)";
}

}  // namespace support
