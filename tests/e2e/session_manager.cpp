// A session manager for one program at a time, with the library that the desktops' own managers
// use. Its first line says where it listens, for SESSION_MANAGER. On its input:
//
//   end     asks the program whether the session may end, and lets it ask its user
//   hurry   the same, but its user cannot be asked
//
// On its output: "registered" once it may be asked; "asks" when the program asks its user; "goes
// on" when that made it call the end off; "may end" when it agreed, and was told that the session
// ends.

#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <poll.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Keeps the library from listening on a network; it has no public name.
extern "C" int _IceTransNoListen(const char* protocol);

namespace {

enum class Phase { Registering, Running, Ending };

struct Manager {
  SmsConn program = nullptr;
  Phase phase = Phase::Registering;
};

void Tell(const char* what) {
  std::cout << what << std::endl;
}

Bool AcceptAnybody(char* /*host*/) {
  return True;  // who can reach the socket is this user
}

Status Register(SmsConn program, SmPointer /*manager*/, char* /*previousId*/) {
  const std::unique_ptr<char, decltype(&std::free)> id(SmsGenerateClientID(program), &std::free);
  SmsRegisterClientReply(program, id.get());
  SmsSaveYourself(program, SmSaveLocal, False, SmInteractStyleNone, False);
  return 1;
}

void LetAsk(SmsConn program, SmPointer /*manager*/, int /*kind*/) {
  Tell("asks");
  SmsInteract(program);
}

void EndAsking(SmsConn program, SmPointer manager, Bool isCalledOff) {
  if (!isCalledOff) return;
  static_cast<Manager*>(manager)->phase = Phase::Running;
  SmsShutdownCancelled(program);
  Tell("goes on");
}

void EndSaving(SmsConn program, SmPointer manager, Bool /*success*/) {
  Phase& phase = static_cast<Manager*>(manager)->phase;
  const Phase before = std::exchange(phase, Phase::Running);
  if (before == Phase::Registering) {
    SmsSaveComplete(program);
    Tell("registered");
  } else if (before == Phase::Ending) {
    SmsDie(program);
    Tell("may end");
  }
}

void Close(SmsConn program, SmPointer manager, int count, char** reasons) {
  *static_cast<Manager*>(manager) = {};
  SmFreeReasons(count, reasons);
  const IceConn connection = SmsGetIceConnection(program);
  SmsCleanUp(program);
  IceCloseConnection(connection);
}

void FreeProperties(SmsConn /*program*/, SmPointer /*manager*/, int count, SmProp** properties) {
  for (int i = 0; i < count; ++i) SmFreeProperty(properties[i]);
  std::free(properties);
}

void FreeNames(SmsConn /*program*/, SmPointer /*manager*/, int count, char** names) {
  for (int i = 0; i < count; ++i) std::free(names[i]);
  std::free(names);
}

Status Welcome(SmsConn program, SmPointer manager, unsigned long* mask, SmsCallbacks* callbacks,
               char** /*whyNot*/) {
  static_cast<Manager*>(manager)->program = program;
  *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
          SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
          SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
          SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
  callbacks->register_client = {&Register, manager};
  callbacks->interact_request = {&LetAsk, manager};
  callbacks->interact_done = {&EndAsking, manager};
  callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {},
                                      manager};
  callbacks->save_yourself_phase2_request = {
      [](SmsConn client, SmPointer) { SmsSaveYourselfPhase2(client); }, manager};
  callbacks->save_yourself_done = {&EndSaving, manager};
  callbacks->close_connection = {&Close, manager};
  callbacks->set_properties = {&FreeProperties, manager};
  callbacks->delete_properties = {&FreeNames, manager};
  callbacks->get_properties = {
      [](SmsConn client, SmPointer) { SmsReturnProperties(client, 0, nullptr); }, manager};
  return 1;
}

/// Does what a line of the input says; false at its end.
bool Obey(Manager& manager) {
  std::string line;
  if (!std::getline(std::cin, line)) return false;
  if (manager.program == nullptr) return true;
  manager.phase = Phase::Ending;
  const int style = line == "end" ? SmInteractStyleAny : SmInteractStyleNone;
  SmsSaveYourself(manager.program, SmSaveBoth, True, style, False);
  return true;
}

}  // namespace

int main() {
  Manager manager;
  std::array<char, 256> error{};
  const int room = static_cast<int>(error.size());
  _IceTransNoListen("tcp");
  int count = 0;
  IceListenObj* listeners = nullptr;
  if (!SmsInitialize("Mivo tests", "1", &Welcome, &manager, &AcceptAnybody, room, error.data()) ||
      !IceListenForConnections(&count, &listeners, room, error.data())) {
    std::cerr << error.data() << '\n';
    return 1;
  }
  std::vector<pollfd> watched = {{0, POLLIN, 0}};
  for (int i = 0; i < count; ++i) {
    IceSetHostBasedAuthProc(listeners[i], &AcceptAnybody);
    watched.push_back({IceGetListenConnectionNumber(listeners[i]), POLLIN, 0});
  }
  const std::size_t own = watched.size();
  std::vector<IceConn> connections;
  // Called with every connection that opens or closes.
  IceAddConnectionWatch(
      [](IceConn connection, IcePointer list, Bool isOpening, IcePointer*) {
        auto& all = *static_cast<std::vector<IceConn>*>(list);
        isOpening ? all.push_back(connection) : static_cast<void>(std::erase(all, connection));
      },
      &connections);
  Tell(IceComposeNetworkIdList(count, listeners));

  for (;;) {
    watched.resize(own);
    const std::vector<IceConn> known = connections;
    for (const IceConn each : known) watched.push_back({IceConnectionNumber(each), POLLIN, 0});
    if (poll(watched.data(), watched.size(), -1) < 0) return 1;
    for (std::size_t i = 0; i < known.size(); ++i) {
      if (watched[own + i].revents == 0) continue;
      if (IceProcessMessages(known[i], nullptr, nullptr) == IceProcessMessagesIOError) {
        IceCloseConnection(known[i]);
      }
    }
    for (std::size_t i = 1; i < own; ++i) {
      if (watched[i].revents == 0) continue;
      IceAcceptStatus status{};
      IceAcceptConnection(listeners[i - 1], &status);
    }
    if (watched[0].revents != 0 && !Obey(manager)) return 0;
  }
}
