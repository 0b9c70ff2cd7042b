#pragma once

#include <QString>
#include <QXmlStreamReader>

namespace TPatch {

// Elements of an imported patch may nest this deep. Real files use fewer than
// ten levels; a deeper document is damaged or made to exhaust memory (the
// XML reader keeps state for every open element), and is refused.
constexpr int kMaxXmlDepth = 256;

// Raises "elements are nested more than 256 deep" on the reader, which then
// stops with that error.
void raiseXmlDepthError(QXmlStreamReader &xml);

// QXmlStreamReader::skipCurrentElement and readElementText(IncludeChildElements)
// with the nesting bound: depth is the current element's own depth (the root
// is 1); an element inside it deeper than kMaxXmlDepth raises the error.
void skipElement(QXmlStreamReader &xml, int depth);
QString readElementText(QXmlStreamReader &xml, int depth);

} // namespace TPatch
