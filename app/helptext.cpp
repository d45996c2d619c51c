#include "helptext.h"

namespace {

QString helpText()
{
    return QStringLiteral(
        "Usage: tessel [FILE.tessel] [-N:INDEX] [-D:DEVICE]... [--log FILE]\n"
        "\n"
        "Divide / Combine Room Wizard: configures a hall whose movable partitions divide\n"
        "it into up to four rooms, and installs the presets into its hubs.\n"
        "\n"
        "Without -N: the wizard asks for the network interface and looks for the devices.\n"
        "A program that starts it can hand them over:\n"
        "\n"
        "  FILE.tessel opens a configuration, as the wizard keeps one of every hall among\n"
        "              the documents, in Tessel; \"Yes\" on closing saves into it\n"
        "  -N:INDEX    the network interface, by its number in the system. The wizard\n"
        "              neither asks nor looks: its devices are those of -D: alone.\n"
        "              -N:-1 chooses none, as if it were not given\n"
        "  -D:MODEL/LABEL/FIRMWARE/ADDRESS/MAC[/SEARCHTYPE[/PASSWORD]]\n"
        "              a device; to be given once for each. For example\n"
        "              \"-D:PX-HB/Hub-1/2.1.0/192.168.0.10/00:A0:DE:10:00:01\"\n"
        "  --log FILE  writes requests to hubs and replies to FILE, without passwords\n"
        "\n"
        "  -h, --help  shows this text\n"
        "  --version   shows the version\n"
        "\n"
        "Qt's own arguments (-platform, -style, ...) are known too. Every other one is\n"
        "ignored, with a line on standard error.\n");
}

} // namespace

std::optional<QString> answerTo(const QStringList& arguments)
{
    for (const QString& argument : arguments.mid(1)) {
        if (argument == u"-h" || argument == u"--help") {
            return helpText();
        }
        if (argument == u"--version") {
            return QStringLiteral("tessel " TESSEL_VERSION "\n");
        }
    }
    return std::nullopt;
}
