#include "io/ZOLReadCheck.h"

bool ZOLReadCheck::acceptsData(std::string_view bytes) {
    if (bytes.empty())
        return false;
    if (bytes.size() >= 2) {
        const auto b0 = static_cast<unsigned char>(bytes[0]);
        const auto b1 = static_cast<unsigned char>(bytes[1]);
        if ((b0 == 0xFE && b1 == 0xFF) || (b0 == 0xFF && b1 == 0xFE))
            return bytes.size() % 2 == 0;
    }
    return bytes.find('\0') == std::string_view::npos;
}
