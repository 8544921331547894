#pragma once
#include "ui/ZOLJobCommand.h"

// The price list: a price typed, a price file loaded, the saved prices used.
class ZOLPricesCommand : public ZOLJobCommand {
public:
    ZOLPricesCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                     ZOLEditPlace place, const QString& text);
};
