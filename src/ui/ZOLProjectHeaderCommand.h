#pragma once
#include "ui/ZOLJobCommand.h"

// The project header: name, client, version, distributor and date.
class ZOLProjectHeaderCommand : public ZOLJobCommand {
public:
    ZOLProjectHeaderCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                            ZOLEditPlace place, const QString& text);
    int id() const override { return 3; }
};
