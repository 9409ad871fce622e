#pragma once

class QAbstractItemModel;
class QTableView;

/// A table of systems, of which one is chosen by its row.
QTableView* systemsTable(QAbstractItemModel& systems);
