// SPDX-License-Identifier: MIT
// SessionManager PROGRAM
//
// Runs a program in a session of its own and ends the session when the program prints a line.
// "end": the program is asked to save, may ask the user, and is asked to quit. "force": it is asked
// to save, may not ask the user, and is killed. Ends with the program's status, or with 0 if
// killed.
#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

SmsConn client = nullptr;
pid_t process = 0;
bool isSettled = false;
bool isEnding = false;
bool isForced = false;
IceListenObj* sockets = nullptr;
int socketCount = 0;
std::vector<IceConn> connections;

void fail(const char* what)
{
    std::fprintf(stderr, "SessionManager: %s\n", what);
    std::exit(2);
}

// The protocol has each new client save once by itself.
Status registerClient(SmsConn connection, SmPointer, char* previousId)
{
    std::free(previousId);
    char* id = SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, id);
    std::free(id);
    SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    client = connection;
    return 1;
}

void allowInteraction(SmsConn connection, SmPointer, int)
{
    SmsInteract(connection);
}

void askToSave()
{
    SmsSaveYourself(client, SmSaveBoth, True, isForced ? SmInteractStyleNone : SmInteractStyleAny,
                    False);
}

void saveDone(SmsConn connection, SmPointer, Bool)
{
    if (!isSettled) {
        isSettled = true;
        SmsSaveComplete(connection);
        if (isEnding)
            askToSave();
    } else if (isForced) {
        kill(process, SIGKILL);
    } else {
        SmsDie(connection);
    }
}

void closeConnection(SmsConn connection, SmPointer, int count, char** reasons)
{
    SmFreeReasons(count, reasons);
    SmsCleanUp(connection);
    client = nullptr;
}

void freeProperties(SmsConn, SmPointer, int count, SmProp** properties)
{
    std::for_each(properties, properties + count, SmFreeProperty);
    std::free(properties);
}

void freeNames(SmsConn, SmPointer, int count, char** names)
{
    std::for_each(names, names + count, std::free);
    std::free(names);
}

Status acceptClient(SmsConn, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**)
{
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
            SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
            SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    *callbacks = {};
    callbacks->register_client.callback = registerClient;
    callbacks->interact_request.callback = allowInteraction;
    callbacks->interact_done.callback = [](SmsConn, SmPointer, Bool) {};
    callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {
    };
    callbacks->save_yourself_phase2_request.callback = [](SmsConn connection, SmPointer) {
        SmsSaveYourselfPhase2(connection);
    };
    callbacks->save_yourself_done.callback = saveDone;
    callbacks->close_connection.callback = closeConnection;
    callbacks->set_properties.callback = freeProperties;
    callbacks->delete_properties.callback = freeNames;
    callbacks->get_properties.callback = [](SmsConn connection, SmPointer) {
        SmsReturnProperties(connection, 0, nullptr);
    };
    return 1;
}

void watchConnection(IceConn connection, IcePointer, Bool opened, IcePointer*)
{
    if (opened)
        connections.push_back(connection);
    else
        connections.erase(std::remove(connections.begin(), connections.end(), connection),
                          connections.end());
}

// Listens for clients, and tells those that are started from now on where.
void listen()
{
    char error[256];
    IceSetIOErrorHandler([](IceConn) {});
    IceAddConnectionWatch(watchConnection, nullptr);
    const auto isAnyHostAllowed = [](char*) -> Bool { return True; };
    if (!SmsInitialize("test", "1", acceptClient, nullptr, isAnyHostAllowed, sizeof error, error) ||
        !IceListenForConnections(&socketCount, &sockets, sizeof error, error))
        fail(error);
    for (int i = 0; i < socketCount; ++i)
        IceSetHostBasedAuthProc(sockets[i], isAnyHostAllowed);
    char* addresses = IceComposeNetworkIdList(socketCount, sockets);
    setenv("SESSION_MANAGER", addresses, /*overwrite=*/1);
    std::free(addresses);
}

// Starts the program; its output can be read from the result.
int start(char** arguments)
{
    int ends[2];
    if (pipe(ends) != 0)
        fail("no pipe");
    process = fork();
    if (process == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        execvp(arguments[0], arguments);
        _exit(127);
    }
    close(ends[1]);
    return ends[0];
}

// False at the end of the output, when the program has ended.
bool readOutput(int output)
{
    char line[16];
    if (read(output, line, sizeof line) <= 0)
        return false;
    if (!client)
        fail("the program takes no part in the session");
    isEnding = true;
    isForced = line[0] == 'f';
    if (isSettled)
        askToSave();
    return true;
}

bool serve(int output)
{
    std::vector<pollfd> files{{output, POLLIN, 0}};
    for (int i = 0; i < socketCount; ++i)
        files.push_back({IceGetListenConnectionNumber(sockets[i]), POLLIN, 0});
    const std::vector<IceConn> known = connections;
    for (IceConn connection : known)
        files.push_back({IceConnectionNumber(connection), POLLIN, 0});
    poll(files.data(), files.size(), -1);
    for (int i = 0; i < socketCount; ++i) {
        IceAcceptStatus status = IceAcceptSuccess;
        if (files[static_cast<std::size_t>(1 + i)].revents != 0)
            IceAcceptConnection(sockets[i], &status);
    }
    const auto firstConnection = static_cast<std::size_t>(1 + socketCount);
    for (std::size_t i = 0; i < known.size(); ++i) {
        if (files[firstConnection + i].revents != 0 &&
            IceProcessMessages(known[i], nullptr, nullptr) == IceProcessMessagesIOError)
            IceCloseConnection(known[i]);
    }
    return files[0].revents == 0 || readOutput(output);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2)
        fail("no program");
    // A program that has ended may not have read all that was sent to it.
    std::signal(SIGPIPE, SIG_IGN);
    listen();
    const int output = start(argv + 1);
    int status = 0;
    while (serve(output)) {
    }
    waitpid(process, &status, 0);
    IceFreeListenObjs(socketCount, sockets);
    if (isForced && WIFSIGNALED(status))
        return 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
