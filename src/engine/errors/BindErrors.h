#pragma once

// Errors that only the looking up of names and the running of statements can find, beside those of Error.h.

#include "engine/errors/Error.h"

namespace engine::errors {

Error columnCountMismatch();                                                                              // 213
Error fewerColumnsThanValues();                                                                           // 110
Error moreColumnsThanValues();                                                                            // 109
Error fewerColumnsThanSelected();                                                                         // 121
Error moreColumnsThanSelected();                                                                          // 120
Error valuesCountMismatch();                                                                              // 10709
Error tooManyRows();                                                                                      // 10738
Error unionCountMismatch();                                                                               // 205
Error oneColumnOnly();                                                                                    // 116
Error moreThanOneValue();                                                                                 // 512
Error unknownFunction(const std::string& name);                                                           // 195
Error argumentCount(const std::string& function, int wanted);                                             // 174
Error unknownDatePart(const std::string& part, const std::string& function);                              // 155
Error incompatibleTypes(const std::string& left, const std::string& right, const std::string& operation); // 402
Error aggregateMisplaced();                                                                               // 147
Error notGrouped(const std::string& column);                                                              // 8120
Error notGroupedInHaving(const std::string& column);                                                      // 8121
Error notGroupedInOrder(const std::string& column);                                                       // 8127
Error groupedByConstant();                                                                                // 164
Error aggregateOfAggregate();                                                                             // 130
Error severalColumnsAggregated();                                                                         // 8124
Error argumentType(const std::string& type, int place, const std::string& function);                      // 8116
Error duplicateInNewKey(const std::string& table, const std::string& key);                                // 1505
Error aggregateOfText(const std::string& type, const std::string& function);                              // 8117
Error orderOutOfRange(int ordinal);                                                                       // 108
Error columnTwice(const std::string& column);                                                             // 264
Error updateIdentity(const std::string& column);                                                          // 8102
Error identityValueMissing(const std::string& table);                                                     // 545
Error divideByZero();                                                                                     // 8134
Error noTransaction(const std::string& verb);                                                             // 3902, 3903
Error storageFull(const std::string& database);                                                           // 1105
Error readOnlyDatabase(const std::string& database);                                                      // 3906
Error storageBroken(const std::string& detail);                                                           // 823
Error missingTable(const std::string& table);                                                             // 4902
Error twoPrimaryKeys(const std::string& table);                                                           // 1779
Error keyColumnMissing(const std::string& column);                                                        // 1911
Error severalIdentities(const std::string& table);                                                        // 2744
Error indexExists(const std::string& table, const std::string& index);                                    // 1913
Error identityInsertBusy(const std::string& holder, const std::string& table);                            // 8107
Error outOfMemory();                                                                                      // 701
Error internal();                                                                                         // 8630
Error systemTable(const std::string& table);                                                              // 259

} // namespace engine::errors
