// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilcomposer.h>
#include <smilparser/smilplayback.h>

// Declared by the host itself, as the library allows too.
class Q_DECL_EXPORT MMSLogger
{
public:
    static bool qdebugEnabled;
};
bool MMSLogger::qdebugEnabled = false;

int main()
{
    SmilParser reader(QByteArray("<smil><head/><body><par dur='5s'><img src='a.jpg'/></par></body></smil>"));
    const SmilDocument &message = reader.parse();
    SmilParser writer(message);
    const bool isShown = SmilTimeline(reader.dom().documentElement()).duration() == 5;
    SmilComposer composer;
    composer.add(SmilRef::Img, QStringLiteral("a.jpg"));
    const bool isWritten = writer.getContent().toString(-1).contains(QLatin1String("<img src=\"a.jpg\"/></par>"));
    const bool isComposed =
        SmilParser(composer.message()).toXml().contains("<img src=\"a.jpg\" region=\"Image\"/></par>");
    return isWritten && isShown && isComposed ? 0 : 1;
}
