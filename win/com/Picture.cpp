#include "win/com/Picture.h"

#include "win/com/ComError.h"
#include "win/com/ComObject.h"

namespace win::com {

support::Variant IconPicture(HICON icon) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof(description);
    description.picType = PICTYPE_ICON;
    description.icon.hicon = CopyIcon(icon);
    ComPtr<IDispatch> picture;
    HRESULT hr = OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE,
                                          reinterpret_cast<void**>(picture.Receive()));
    if (FAILED(hr)) DestroyIcon(description.icon.hicon);
    Check(hr);
    return support::Variant(std::make_shared<ComObject>(std::move(picture)));
}

support::Variant StandardIconPicture() {
    return IconPicture(LoadIcon(nullptr, IDI_APPLICATION));
}

}  // namespace win::com
