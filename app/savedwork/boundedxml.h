#pragma once

#include <QXmlStreamReader>

/// Walks the elements of an XML text that may be hostile, in time and memory proportional to its
/// length: it refuses document types (whose entities can expand without end), elements nested
/// deeper or with more attributes than the wizard's own files could have.
///
/// Text between the elements is passed over.
class BoundedXml
{
public:
    explicit BoundedXml(const QString& text);

    /// Moves to the next child of the current element (at first: to the root). False, and back in
    /// the parent, when there is none left or the text is damaged.
    bool enterChild();

    /// Passes over what is left of the current element and returns to its parent.
    void leave();

    QStringView tag() const;
    QXmlStreamAttributes attributes() const;

    /// Reads what follows the root; true when the whole text was sound.
    bool finish();

private:
    static constexpr int maxDepth = 16;

    QXmlStreamReader m_reader;
    int m_depth = 0;
};
