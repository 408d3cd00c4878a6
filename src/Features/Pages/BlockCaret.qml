import QtQml

/// What going from block to block by keys has to remember.
QtObject {
    /// Where across the list Up and Down aim, in its pixels; -1 before the first of them.
    property real column: -1
    /// Whether keys have been pressed since the pointer last moved.
    property bool typing: false
}
