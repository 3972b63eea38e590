#pragma once

#include "parameters/iparametercollection.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QStandardItem>
#include <QString>

#include <functional>

namespace BenchmarkUtil {

//! Bytes currently allocated from the heap (glibc's count).
qint64 heapInUse();

//! Runs work `repeats` times and gives the fastest run in milliseconds.
double fastestMs(int repeats, const std::function<void()>& work);

//! Milliseconds of one run.
double timeMs(const std::function<void()>& work);

//! Asks rowCount of every row below parent, which fills a lazy tree; gives the number of rows.
int walkRowCount(const QAbstractItemModel& model, const QModelIndex& parent);

//! The plain alternative to the feature tree: the same name column (display name, and unit where there is
//! one) and value texts copied into standard items.
//! When `keep` is given, every parameter looked up is kept alive in it.
void fillStandardModel(QStandardItem* parent, ParameterCollection::IParameterCollection& collection,
    const QString& fullName, QList<QSharedPointer<ParameterCollection::IParameter>>* keep = nullptr);

} // namespace BenchmarkUtil
