// The least that a program without windows can be: linked to the same Qt modules as the tool, it
// prints a line.

#include <QGuiApplication>
#include <QTcpSocket>

#include <cstdio>

int main()
{
    // Mentioned so that all modules are loaded.
    const auto* const socket = &QTcpSocket::staticMetaObject;
    const auto* const graphics = &QGuiApplication::staticMetaObject;
    return socket != graphics && std::puts("bench_toolfloor") >= 0 ? 0 : 1;
}
