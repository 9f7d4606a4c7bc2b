// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

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
    if (SmilTimeline(reader.dom().documentElement()).duration != 5) {
        return 2;
    }
    return writer.getContent().toString(-1).contains(QLatin1String("<par dur=\"5s\"><img src=\"a.jpg\"/></par>")) ? 0
                                                                                                                  : 1;
}
