#pragma once

#include "engine/SessionFixture.h"

#include <initializer_list>

namespace engine {

/// What a server answers to a statement, and the page of its documentation in a word.
struct DocumentedCase {
    const char* statement;
    const char* answer;
    const char* page;
};

class DocumentedTest : public SessionTest {
protected:
    void expect(std::initializer_list<DocumentedCase> cases) {
        for (const DocumentedCase& one : cases) {
            EXPECT_EQ(answer(one.statement), one.answer) << one.statement << "\n" << one.page;
        }
    }
    /// The rows alone.
    void expectRows(std::initializer_list<DocumentedCase> cases) {
        for (const DocumentedCase& one : cases) {
            EXPECT_EQ(rows(one.statement), one.answer) << one.statement << "\n" << one.page;
        }
    }
};

} // namespace engine
