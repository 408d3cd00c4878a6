#pragma once

#include "Features/Databases/RecordCell.h"

#include <QtQml/qqmlregistration.h>

/// Makes what records show known to QML.
struct RecordCellType {
    Q_GADGET
    QML_FOREIGN(RecordCell)
    QML_ANONYMOUS
};

struct RecordColumnType {
    Q_GADGET
    QML_FOREIGN(RecordColumn)
    QML_ANONYMOUS
};

struct RecordValuesType {
    Q_GADGET
    QML_FOREIGN(RecordValues)
    QML_ANONYMOUS
};
