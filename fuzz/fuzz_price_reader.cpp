// Opens arbitrary bytes as a price file into a default price list, then prices every part and
// saves the list again.
#include "FuzzSupport.h"

#include "io/ZOLPriceFileReader.h"
#include "model/ZOLPricing.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzAlertSink::install();
    ZOLPricing pricing;
    ZOLPriceFileReader::readPriceData({reinterpret_cast<const char*>(data), size}, pricing);
    volatile double sum = 0.0;
    for (int32_t type = -1; type <= 17; ++type)
        for (int32_t size : {0, 4, 6, 8, 10, 12})
            sum = sum + pricing.getPriceForItemType(type, size);
    for (const auto& item : pricing.priceItems())
        sum = sum + static_cast<double>(item->getPartText().size());
    volatile std::size_t written = pricing.getFullXMLString().size();
    (void)written;
    return 0;
}
