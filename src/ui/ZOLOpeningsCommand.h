#pragma once
#include "ui/ZOLJobCommand.h"

// The openings table of one worksheet: a row added or removed, a cell typed.
class ZOLOpeningsCommand : public ZOLJobCommand {
public:
    ZOLOpeningsCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                       ZOLEditPlace place, const QString& text);
    int id() const override { return 2; }
};
