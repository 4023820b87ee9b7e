#include "engine/text/Parser.h"

#include "engine/errors/TextErrors.h"
#include "engine/text/ParserGrammar.h"

namespace engine {

BatchTree parse(std::string_view batch) {
    if (batch.size() > kLongestBatch) {
        throw errors::nestedTooDeep();
    }
    return Grammar(batch).batch();
}

ExpressionPtr parseExpression(std::string_view text) {
    return Grammar(text).expressionAlone();
}

} // namespace engine
