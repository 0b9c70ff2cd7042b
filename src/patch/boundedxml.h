#pragma once

#include "patch/patchmessage.h"

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
// At a start element of this depth (the root is 1): false, with the depth
// error raised, when it is too deep to read.
bool enterElement(QXmlStreamReader &xml, int depth);

// Why the document just read is no patch, as the readers word it: the reader's
// error with its line, or no root element at all; empty when it was whole.
PatchMessage documentError(const QXmlStreamReader &xml, bool sawRoot);

// QXmlStreamReader::skipCurrentElement and readElementText(IncludeChildElements)
// with the nesting bound: depth is the current element's own depth (the root
// is 1); an element inside it deeper than kMaxXmlDepth raises the error.
void skipElement(QXmlStreamReader &xml, int depth);
QString readElementText(QXmlStreamReader &xml, int depth);

} // namespace TPatch
