#include "run_cli.h"

#include <CLI/CLI.hpp>

#include "check_command.h"
#include "convert_command.h"
#include "list_command.h"
#include "program_version.h"
#include "text_encoding.h"

namespace mivo {
namespace {

/// The arguments as CLI11 takes them: last one first. It takes apart what stands in brackets, which
/// may well be the name of a file.
std::vector<std::string> ForParser(const std::vector<std::string>& arguments) {
  std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
  for (std::string& argument : reversed) {
    if (argument.starts_with('[')) argument.insert(0, "./");
  }
  return reversed;
}

}  // namespace

ExitCode RunCli(const std::vector<std::string>& arguments, const CommandIo& io) {
  CLI::App app("Lists, converts and checks component libraries.", "mivo-cli");
  app.footer(
      "FILE and IN are a library (.ZLB) or a schematic (.ZSC); \"-\" is the standard input, as "
      "OUT\n"
      "the standard output.\n"
      "Exit status: 0 fine; 1 findings, or a load that failed; 2 wrong usage, or a file that "
      "cannot\n"
      "be read or written.");
  app.set_version_flag("--version", "mivo-cli " + Utf16ToUtf8(kProgramVersion));
  app.require_subcommand(1);
  app.allow_windows_style_options(false);

  ListOptions list;
  CLI::App& listCommand = *app.add_subcommand("list", "Print one line per name of a library");
  listCommand.add_option("FILE", list.file, "Library or schematic")->required();
  listCommand.add_flag("--json", list.json, "Print JSON, with all texts");

  ConvertOptions convert;
  CLI::App& convertCommand =
      *app.add_subcommand("convert", "Save a library or schematic as a library");
  convertCommand.add_option("IN", convert.in, "Library or schematic")->required();
  convertCommand.add_option("OUT", convert.out, "Library to write")->required();
  convertCommand.add_flag("--keep-partial", convert.keepPartial,
                          "Write what was read before a load failed");

  CheckOptions check;
  CLI::App& checkCommand = *app.add_subcommand("check", "Print what is wrong with libraries");
  checkCommand.add_option("FILE", check.files, "Libraries or schematics")->required();
  checkCommand.add_flag("--strict", check.strict, "Fail also when saving would change the file");

  try {
    app.parse(ForParser(arguments));
  } catch (const CLI::CallForVersion& request) {
    Print(io.output, std::string(request.what()) + '\n');
    return ExitCode::Fine;
  } catch (const CLI::Success&) {
    Print(io.output, app.help());
    return ExitCode::Fine;
  } catch (const CLI::Error& error) {
    PrintFailure(io, "usage", error.what());
    Print(io.errors, "Try 'mivo-cli --help'.\n");
    return ExitCode::Failure;
  }
  if (listCommand.parsed()) return RunList(list, io);
  if (convertCommand.parsed()) return RunConvert(convert, io);
  return RunCheck(check, io);
}

}  // namespace mivo
