// SPDX-License-Identifier: MIT
#include "app/command_line/help_text.h"

#include "app/command_line/message_text.h"

namespace quillon {

namespace {

QString optionsText()
{
    return messageText(
        "Affiche la fin (2 Mio) d’un journal d’erreurs de WordPress ou de PHP : dans une\n"
        "fenêtre ou, avec --print, sur la sortie standard.\n"
        "\n"
        "  -f, --follow         montre aussi les lignes qui s’ajoutent, à mesure\n"
        "  -p, --print          écrit les lignes sur la sortie standard, sans fenêtre\n"
        "  -h, --help           affiche cette aide\n"
        "      --version        affiche la version\n"
        "\n"
        "Avec --print :\n"
        "  -q, --query TEXTE    seulement les lignes où se trouve TEXTE, expression\n"
        "                       régulière sans égard à la casse, ou /expression/\n"
        "  -e, --only-errors    seulement les lignes fatal et error\n"
        "      --hide LISTE     sans ces niveaux, séparés par des virgules : deprecated,\n"
        "                       warning, notice\n"
        "  -n, --lines N        seulement les N dernières de ces lignes ; avec --follow,\n"
        "                       puis la suite (0 : rien que la suite)\n"
        "  -c, --count          au lieu des lignes, leur nombre à chaque niveau\n"
        "      --no-number      sans le numéro des lignes\n"
        "      --color[=QUAND]  en couleurs : auto (sur un terminal ; c’est le défaut),\n"
        "                       always ou never\n"
        "      --json           un objet JSON par ligne\n"
        "      --no-runs        avec --json : sans les couleurs, deux fois plus court\n"
        "\n"
        "Sans FICHIER, ou pour « - », --print lit l’entrée standard du début à la fin, et\n"
        "un tube de même ; chaque ligne s’affiche dès qu’elle est entière. Plusieurs\n"
        "fichiers s’affichent l’un après l’autre, chacun sous son titre.\n");
}

QString examplesText()
{
    return messageText("Exemples :\n"
                       "  quillon -pf -n 20 debug.log\n"
                       "          les 20 dernières lignes, puis celles qui s’ajoutent\n"
                       "  docker logs -f site 2>&1 | quillon -pe\n"
                       "          les erreurs d’un conteneur\n"
                       "  zcat debug.log.2.gz | quillon -p --color=always | less -R\n"
                       "          un ancien journal, en couleurs, page par page\n"
                       "  quillon -pc --hide notice *.log\n"
                       "          combien de lignes de chaque niveau\n"
                       "  quillon -p --json --no-runs debug.log | jq -r .text\n"
                       "          pour un autre programme\n");
}

QString environmentText()
{
    return messageText(
        "Environnement : NO_COLOR non vide ôte les couleurs, CLICOLOR_FORCE en met même\n"
        "dans un tube. COLORTERM (truecolor, 24bit) et TERM disent combien le terminal en\n"
        "a : 24 bits, 256 (« …-256color ») ou 16 ; aucune sur « dumb ».\n"
        "\n"
        "Code de retour : 0 tout va bien, 1 un fichier ne se lit pas ou la sortie ne\n"
        "s’écrit pas, 2 les arguments sont faux ; 130 ou 143 quand --follow est\n"
        "interrompu par SIGINT ou SIGTERM.\n");
}

} // namespace

QString usageText()
{
    return messageText("Usage : quillon [-f] [FICHIER…]\n"
                       "        quillon -p [-ef] [-q TEXTE] [-n N] [OPTION…] [FICHIER…]\n");
}

QString helpText()
{
    const QString gap = QStringLiteral("\n");
    return usageText() + gap + optionsText() + gap + examplesText() + gap + environmentText();
}

} // namespace quillon
