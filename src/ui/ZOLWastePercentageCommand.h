#pragma once
#include "ui/ZOLJobCommand.h"

// A worksheet's waste percentage.
class ZOLWastePercentageCommand : public ZOLJobCommand {
public:
    ZOLWastePercentageCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                              ZOLEditPlace place, const QString& text);
};
