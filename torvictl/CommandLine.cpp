// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "torvictl/CommandLine.h"

#include "GCloudCLI/Utf8.h"
#include "torvictl/Operations.h"
#include "torvictl/SettingChange.h"

#include <QCoreApplication>

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace torvi {

namespace {

using CommandLine::Operation;
using Operations::Format;
using Operations::StatusFormat;

/// Checked to be UTF-8 before anything is parsed.
QString text(const std::string &argument)
{
    return QString::fromStdString(argument);
}

ImpersonationMode impersonationMode(const std::string &name)
{
    if (name == "both") {
        return ImpersonationMode::both;
    }
    return name == "cliOnly" ? ImpersonationMode::cliOnly : ImpersonationMode::adcOnly;
}

StatusFormat statusFormat(bool isJson, const std::optional<std::string> &bar)
{
    if (!bar) {
        return isJson ? Format::json : Format::text;
    }
    if (*bar == "waybar") {
        return BarFormat::waybar;
    }
    if (*bar == "polybar") {
        return BarFormat::polybar;
    }
    return *bar == "i3blocks" ? BarFormat::i3blocks : BarFormat::plain;
}

/// Builds the commands one by one; each leaves what it asks for in `operation` when it is given.
class Commands
{
    Q_DECLARE_TR_FUNCTIONS(torvi::CommandLine)

public:
    explicit Commands(CLI::App &app)
        : m_app(app)
    {
        addQueries();
        addOperations();
        addImpersonation();
        addServiceAccounts();
        addPreferences();
    }

    Operation operation;

private:
    /// Values live as long as the commands: CLI11 writes into them while it parses.
    template <typename T>
    std::shared_ptr<T> value(T initial = {})
    {
        auto pointer = std::make_shared<T>(std::move(initial));
        m_values.push_back(pointer);
        return pointer;
    }

    CLI::App *add(const char *name, const QString &description)
    {
        return m_app.add_subcommand(name, description.toStdString());
    }

    using WithFormat = QCoro::Task<int> (*)(DependencyContainer &, Format);
    using WithStatusFormat = QCoro::Task<int> (*)(DependencyContainer &, StatusFormat);
    using WithText = QCoro::Task<int> (*)(DependencyContainer &, QString);
    using WithTextAndFormat = QCoro::Task<int> (*)(DependencyContainer &, QString, Format);

    std::shared_ptr<bool> addJsonFlag(CLI::App *command)
    {
        auto isJson = value<bool>();
        command->add_flag("--json", *isJson,
                          tr("Print JSON, one line for each answer").toStdString());
        return isJson;
    }

    void addStatus(const char *name, const QString &description, WithStatusFormat run)
    {
        CLI::App *command = add(name, description);
        auto isJson = addJsonFlag(command);
        auto bar = value<std::optional<std::string>>();
        command
            ->add_option("--format", *bar, tr("Print one line for a bar or a prompt").toStdString())
            ->check(CLI::IsMember({ "waybar", "polybar", "i3blocks", "plain" }))
            ->excludes("--json");
        command->callback([this, run, isJson, bar] {
            operation = [run, format = statusFormat(*isJson, *bar)](
                            DependencyContainer &container) { return run(container, format); };
        });
    }

    std::shared_ptr<std::string> addText(CLI::App *command, const char *name,
                                         const QString &description)
    {
        auto argument = value<std::string>();
        command->add_option(name, *argument, description.toStdString())->required();
        return argument;
    }

    CLI::App *addQuery(const char *name, const QString &description, WithFormat run)
    {
        CLI::App *command = add(name, description);
        auto isJson = addJsonFlag(command);
        command->callback([this, run, isJson] {
            if (operation) {
                return; // a command of this command has been given, and its callback ran first
            }
            operation = [run, format = *isJson ? Format::json : Format::text](
                            DependencyContainer &container) { return run(container, format); };
        });
        return command;
    }

    void addTextQuery(const char *name, const QString &description, const char *argument,
                      const QString &argumentDescription, WithTextAndFormat run)
    {
        CLI::App *command = add(name, description);
        auto given = addText(command, argument, argumentDescription);
        auto isJson = addJsonFlag(command);
        command->callback([this, run, given, isJson] {
            operation
                = [run, given = text(*given), format = *isJson ? Format::json : Format::text](
                      DependencyContainer &container) { return run(container, given, format); };
        });
    }

    void addTextCommand(const char *name, const QString &description, const char *argument,
                        const QString &argumentDescription, WithText run)
    {
        CLI::App *command = add(name, description);
        auto given = addText(command, argument, argumentDescription);
        command->callback([this, run, given] {
            operation = [run, given = text(*given)](DependencyContainer &container) {
                return run(container, given);
            };
        });
    }

    void addQueries()
    {
        addStatus("status", tr("Show what is active, from gcloud's files"), &Operations::status);
        addStatus("watch", tr("Show what is active, again at each change"), &Operations::watch);
        addQuery("projects", tr("List the projects that the active account sees"),
                 &Operations::projects);
        add("identity-token", tr("Print an identity token of the active account"))
            ->callback([this] { operation = &Operations::identityToken; });
        add("locate", tr("Print the path of the gcloud that is used"))->callback([this] {
            operation = &Operations::locate;
        });
        add("doctor", tr("Tell what Torvi found on this machine, without anything private"))
            ->callback([this] { operation = &Operations::doctor; });
    }

    void addOperations()
    {
        addTextCommand("switch-project", tr("Make another project active"), "ID", tr("Project id"),
                       &Operations::switchProject);
        addTextCommand("switch-account", tr("Make another account active"), "EMAIL",
                       tr("A credentialed account"), &Operations::switchAccount);
        addTextCommand("activate-configuration", tr("Activate a named configuration"), "NAME",
                       tr("Configuration name"), &Operations::activateConfiguration);
        addTextCommand("create-configuration",
                       tr("Create a named configuration; gcloud also activates it"), "NAME",
                       tr("Configuration name"), &Operations::createConfiguration);
        addTextCommand("delete-configuration",
                       tr("Delete a named configuration that is not active"), "NAME",
                       tr("Configuration name"), &Operations::deleteConfiguration);
        addTextCommand("set-quota-project",
                       tr("Set the quota project of the Application Default Credentials"), "ID",
                       tr("Project id"), &Operations::setQuotaProject);
        add("adc-login", tr("Log in to Application Default Credentials with the browser"))
            ->callback([this] { operation = &Operations::adcLogin; });
    }

    std::shared_ptr<std::string> addMode(CLI::App *command)
    {
        auto mode = value<std::string>("adcOnly");
        command->add_option("--mode", *mode, tr("adcOnly (default), cliOnly or both").toStdString())
            ->check(CLI::IsMember({ "adcOnly", "cliOnly", "both" }));
        return mode;
    }

    void addImpersonation()
    {
        CLI::App *impersonate = add("impersonate", tr("Impersonate a service account"));
        auto email = addText(impersonate, "EMAIL", tr("Service account"));
        auto mode = addMode(impersonate);
        impersonate->callback([this, email, mode] {
            operation = [email = text(*email),
                         mode = impersonationMode(*mode)](DependencyContainer &container) {
                return Operations::impersonate(container, email, mode);
            };
        });
        CLI::App *clear = add("clear-impersonation",
                              tr("Stop impersonating; for ADC this revokes the credentials"));
        auto clearedMode = addMode(clear);
        clear->callback([this, clearedMode] {
            operation = [mode = impersonationMode(*clearedMode)](DependencyContainer &container) {
                return Operations::clearImpersonation(container, mode);
            };
        });
    }

    void addServiceAccounts()
    {
        addTextQuery("service-accounts", tr("List the service accounts of a project"), "PROJECT",
                     tr("Project id"), &Operations::serviceAccounts);
        addTextQuery("saved-accounts", tr("List the saved service accounts of a project"),
                     "PROJECT", tr("Project id"), &Operations::savedAccounts);
        addSaveAccount();
        addForgetAccount();
    }

    std::shared_ptr<std::string> addProject(CLI::App *command)
    {
        auto project = value<std::string>();
        command->add_option("--project", *project, tr("Project id").toStdString())->required();
        return project;
    }

    void addSaveAccount()
    {
        CLI::App *save = add("save-account", tr("Save a service account of a project"));
        auto email = addText(save, "EMAIL", tr("Service account"));
        auto project = addProject(save);
        auto label = value<std::optional<std::string>>();
        save->add_option("--label", *label, tr("Name to show").toStdString());
        save->callback([this, email, project, label] {
            ServiceAccount account{ text(*email), text(*project), std::nullopt };
            if (*label) {
                account.displayName = text(**label);
            }
            operation = [account](DependencyContainer &container) {
                return Operations::saveAccount(container, account);
            };
        });
    }

    void addForgetAccount()
    {
        CLI::App *forget = add("forget-account", tr("Forget a saved service account of a project"));
        auto email = addText(forget, "EMAIL", tr("Service account"));
        auto project = addProject(forget);
        forget->callback([this, email, project] {
            operation
                = [email = text(*email), project = text(*project)](DependencyContainer &container) {
                      return Operations::forgetAccount(container, email, project);
                  };
        });
    }

    void addPreferences()
    {
        addQuery("recents", tr("List the ids of recently used projects, newest first"),
                 &Operations::recents);
        addTextCommand("pin", tr("Pin a project"), "ID", tr("Project id"), &Operations::pin);
        addTextCommand("unpin", tr("Unpin a project"), "ID", tr("Project id"), &Operations::unpin);
        CLI::App *settings = addQuery("settings", tr("Show the settings"), &Operations::settings);
        CLI::App *set = settings->add_subcommand("set", tr("Change one setting").toStdString());
        auto name = addText(set, "NAME", tr("The setting, as `torvictl settings` names it"));
        auto newValue = addText(set, "VALUE", tr("Its new value"));
        set->callback([this, name, newValue] {
            try {
                operation = [change = settingChange(text(*name), text(*newValue))](
                                DependencyContainer &container) {
                    return Operations::changeSetting(container, change);
                };
            } catch (const std::invalid_argument &error) {
                throw CLI::ValidationError(error.what());
            }
        });
    }

    CLI::App &m_app;
    std::vector<std::shared_ptr<void>> m_values;
};

int usageError(const QString &message)
{
    std::cerr << message.toStdString() << '\n'
              << Commands::tr("Run with --help for more information.").toStdString() << std::endl;
    return CommandLine::kUsageError;
}

} // namespace

std::variant<Operation, int> CommandLine::parse(int argc, const char *const *argv)
{
    CLI::App app(Commands::tr("Shows and changes the Google Cloud context of the gcloud "
                              "command line.")
                     .toStdString(),
                 "torvictl");
    app.set_version_flag("--version", "torvictl " TORVI_VERSION);
    app.require_subcommand(1);
    Commands commands(app);
    for (int i = 1; i < argc; ++i) {
        if (!decodeUtf8(argv[i])) {
            return usageError(Commands::tr("Argument %1 is not UTF-8.").arg(i));
        }
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &printed) { // help and version
        return app.exit(printed);
    } catch (const CLI::ParseError &error) {
        return usageError(QString::fromUtf8(error.what()));
    }
    return commands.operation;
}

} // namespace torvi
