#pragma once
#include <cstdint>
#include <iterator>
#include <memory>

namespace addin {
class AddinState;
}
namespace host {
class Document;
}

// Renewing the preview pictures of part and assembly files in a chosen view orientation.
namespace dialogs::thumbnails {

struct Orientation {
    const char* caption;  // the item of the "Orientation" menu
    std::int32_t code;    // the host's view orientation
};

// The "Orientation" menu, indexed from 0 as the setting "ThumbnailOrient" stores it.
inline constexpr Orientation kOrientations[] = {
    {"Default (saved ISO)", 10753},
    {"Top Left Front Iso", 10760},
    {"Top Right Front ISO", 10759},
    {"Bottom Left ISO", 10762},
    {"Bottom Right ISO", 10761},
    {"Front", 10764},
    {"Top", 10754},
    {"Left", 10758},
    {"Right", 10755},
    {"Bottom", 10757},
    {"Back", 10756},
};
inline constexpr int kOrientationCount = static_cast<int>(std::size(kOrientations));
// Keeps the camera each file was saved with; also used when no item is checked.
inline constexpr std::int32_t kSavedOrientation = 10753;

// The orientation code of a checked menu index; the saved camera when none is checked.
std::int32_t OrientationCode(int checkedIndex);

// One thumbnail run in one orientation.
class ThumbnailRun {
public:
    ThumbnailRun(addin::AddinState& state, std::int32_t orientation);

    // Opens the file, turns its view, marks it changed, saves and closes it. A file
    // reserved by another user, or one that cannot be modified, is skipped with a
    // status-bar text. The document that was active when the run began is saved in
    // place and left open: closing it would close the assembly being worked on.
    void MakeThumbnail(const std::shared_ptr<host::Document>& document);

    // Every document the given one references, depth first, each as often as it is
    // met; then the given document itself.
    void ProcessWithReferences(const std::shared_ptr<host::Document>& document);

private:
    void ProcessReferences(const std::shared_ptr<host::Document>& document);

    addin::AddinState& state_;
    std::int32_t orientation_;
    std::shared_ptr<host::Document> activeAtStart_;
};

}  // namespace dialogs::thumbnails
