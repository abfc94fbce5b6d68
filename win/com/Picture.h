#pragma once
#include "support/Variant.h"
#include "win/com/Ole.h"

namespace win::com {

// An icon as the host takes and gives pictures: an IPictureDisp (OLE Automation's StdPicture)
// in a support::Variant. The picture owns a copy of the icon.
support::Variant IconPicture(HICON icon);
// The system's application icon as a picture, for a button that shows some icon.
support::Variant StandardIconPicture();

}  // namespace win::com
