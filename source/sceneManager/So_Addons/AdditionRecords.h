#pragma once

#include "So_Addition.h"

#include <span>

/// How the record of one type of addition is read.
struct RecordReader {
    AdditionType type;
    /// Reads what follows the type, in a link of a chain without has-next. The result belongs to
    /// the caller; null for a record that stands for no addition.
    So_Addition* (*read)(TextReader& stream);
};

/// The readers of all types that can be stored.
std::span<const RecordReader> recordReaders();
