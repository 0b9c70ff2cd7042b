#include "patch/boundedxml.h"

namespace TPatch {

namespace {

// Reads to the end of the current element; text is appended to *text when given.
void readToEnd(QXmlStreamReader &xml, int depth, QString *text)
{
    int level = 1; // open elements from the current one down
    while (level > 0 && !xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (depth + level >= kMaxXmlDepth + 1) {
                raiseXmlDepthError(xml);
                return;
            }
            ++level;
            break;
        case QXmlStreamReader::EndElement:
            --level;
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (text)
                text->append(xml.text());
            break;
        default:
            break;
        }
    }
}

} // namespace

void raiseXmlDepthError(QXmlStreamReader &xml)
{
    xml.raiseError(QStringLiteral("elements are nested more than %1 deep").arg(kMaxXmlDepth));
}

void skipElement(QXmlStreamReader &xml, int depth)
{
    readToEnd(xml, depth, nullptr);
}

QString readElementText(QXmlStreamReader &xml, int depth)
{
    QString text;
    readToEnd(xml, depth, &text);
    return text;
}

bool enterElement(QXmlStreamReader &xml, int depth)
{
    if (depth <= kMaxXmlDepth)
        return true;
    raiseXmlDepthError(xml);
    return false;
}

PatchMessage documentError(const QXmlStreamReader &xml, bool sawRoot)
{
    // A document that ends before any element is "no root", not a premature end.
    if (!sawRoot && (!xml.hasError() || xml.error() == QXmlStreamReader::PrematureEndOfDocumentError))
        return PatchMessage(QT_TRANSLATE_NOOP("TPatch", "the document has no root element"));
    if (xml.hasError())
        return PatchMessage(QT_TRANSLATE_NOOP("TPatch", "%1 (line %2)"), {xml.errorString(), qint64(xml.lineNumber())});
    return {};
}

} // namespace TPatch
