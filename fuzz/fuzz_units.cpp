// Unit-bearing expressions as a person types them into the weight dialog.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/Codes.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "simhost/SimHost.h"
#include "support/Error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static simhost::SimHost host;
    static auto part = host.Application()->Documents()->Add(host::kPartDocumentObject, "", false);
    static auto units = part->UnitsOfMeasure();
    std::string text(reinterpret_cast<const char*>(data), size);
    for (std::int32_t unit : {host::kDefaultDisplayMassUnits, host::kDefaultDisplayLengthUnits}) {
        try {
            units->GetValueFromExpression(text, unit);
        } catch (const support::Error&) {
        }
    }
    try {
        units->GetStringFromValue(1.5, text);
    } catch (const support::Error&) {
    }
    return 0;
}
