#include "ui/ZOLJobCommand.h"

#include "ui/ZOLJobDocument.h"

ZOLJobCommand::ZOLJobCommand(ZOLJobDocument* document, ZOLJobValues before, ZOLJobValues after,
                             ZOLEditPlace place, const QString& text)
    : document_(document), before_(std::move(before)), after_(std::move(after)),
      place_(std::move(place)) {
    setText(text);
}

void ZOLJobCommand::undo() {
    document_->applyChange(before_, place_);
}

void ZOLJobCommand::redo() {
    if (made_) {
        made_ = false;
        return;
    }
    document_->applyChange(after_, place_);
}

bool ZOLJobCommand::mergeWith(const QUndoCommand* other) {
    const auto* next = dynamic_cast<const ZOLJobCommand*>(other);
    if (!next || !place_.typing || !next->place_.typing || next->place_.control != place_.control ||
        next->place_.worksheet != place_.worksheet || !next->before_.sameParts(before_))
        return false;
    after_ = next->after_;
    // Typed back to what it was: nothing is left to undo.
    setObsolete(before_ == after_);
    return true;
}
