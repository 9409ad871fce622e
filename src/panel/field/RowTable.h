#pragma once

class QAbstractItemModel;
class QTableView;

/// A table without a grid, of which one whole row is chosen; Tab leads on from it. `rows` outlives it.
QTableView* rowTable(QAbstractItemModel& rows);
