// The greatest of the records of a list.
#pragma once

#include "core/record_list.h"

namespace backbeat {

/// The record with the most of something, of those that count; of equals the first, nullptr when none counts.
template <class T, class Number, class Counts>
const T* recordWithMost(const RecordList<T>& list, Number T::*amount, Counts counts) {
  const T* most = nullptr;
  for (const T& record : list) {
    if (counts(record) && (!most || record.*amount > most->*amount)) most = &record;
  }
  return most;
}

/// The same of all; nullptr when the list is empty.
template <class T, class Number>
const T* recordWithMost(const RecordList<T>& list, Number T::*amount) {
  return recordWithMost(list, amount, [](const T&) { return true; });
}

/// The same of those that have any of it at all.
template <class T, class Number>
const T* recordWithMostOfAny(const RecordList<T>& list, Number T::*amount) {
  return recordWithMost(list, amount, [&](const T& record) { return record.*amount > 0; });
}

}  // namespace backbeat
