#pragma once
#include "ui/ZOLJobCommand.h"

// A typed value, a choice, a check box or a stepper on one worksheet's screens (pulling wall data
// and sending openings to the wall page too), named by the control's label.
class ZOLRecordEditCommand : public ZOLJobCommand {
public:
    ZOLRecordEditCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                         ZOLEditPlace place, const QString& text);
    int id() const override { return 1; }
};
