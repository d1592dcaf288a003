<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quorvel</source>
        <translation>À propos de Quorvel</translation>
    </message>
    <message>
        <source>Quorvel %1</source>
        <translation>Quorvel %1</translation>
    </message>
    <message>
        <source>Sends Morse code through a WinKeyer USB keyer.

Free software under the MIT licence, made with Qt %1.</source>
        <translation>Émet du morse par un manipulateur WinKeyer USB.

Logiciel libre sous licence MIT, réalisé avec Qt %1.</translation>
    </message>
</context>
<context>
    <name>AlertBox</name>
    <message>
        <source>Takes keys when you have stopped typing for a second</source>
        <translation>Accepte les touches quand vous n’avez rien tapé pendant une seconde</translation>
    </message>
</context>
<context>
    <name>AnswerNotice</name>
    <message>
        <source>Ask again</source>
        <translation>Redemander</translation>
    </message>
    <message>
        <source>The keyer on %1 does not answer. Look at its power, its cable, and whether this is its port.</source>
        <translation>Le manipulateur sur %1 ne répond pas. Vérifiez son alimentation, son câble, et si ce port est bien le sien.</translation>
    </message>
    <message>
        <source>Nothing has come from the keyer on %1 for 10 s, though a character is on its way to it. It may have started anew.</source>
        <translation>Rien n’est venu du manipulateur sur %1 depuis 10 s, alors qu’un caractère est en route vers lui. Il a peut-être redémarré.</translation>
    </message>
</context>
<context>
    <name>BoundControl</name>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>Reset “%1” to its default, %2</source>
        <translation>Ramener «&#xa0;%1&#xa0;» à sa valeur par défaut, %2</translation>
    </message>
    <message>
        <source>Reset %1 to %2</source>
        <translation>Ramener %1 à %2</translation>
    </message>
    <message>
        <source>stored: %1</source>
        <translation>enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 to %2, default %3</source>
        <translation>%1 à %2, par défaut %3</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1. It stays until it is changed here.</source>
        <translation>%1. Cela reste ainsi jusqu’à un changement ici.</translation>
    </message>
</context>
<context>
    <name>BoundNumber</name>
    <message>
        <source>%1 will become %2.</source>
        <translation>%1 deviendra %2.</translation>
    </message>
    <message>
        <source>“%1” is not a number. It stays at %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre. La valeur reste %2.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3. It stays at %4.</source>
        <translation>%1 est hors limites&#xa0;: %2 à %3. La valeur reste %4.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: quorvel [options]
Sends Morse code through a WinKeyer USB keyer.

Options:
  -h, --help     Shows this text.
  -v, --version  Shows the version.
  --check-ports  Tells what is in the way of each serial port.
      --ask-keyer PORT
                 Behind that: asks the keyer on this port, too.

The toolkit&apos;s own options, such as -platform and -style, work too. The guide is under Help.
</source>
        <translation>Utilisation&#xa0;: quorvel [options]
Émet du morse par un manipulateur WinKeyer USB.

Options&#xa0;:
  -h, --help     Affiche ce texte.
  -v, --version  Affiche la version.
  --check-ports  Dit ce qui gêne chaque port série.
      --ask-keyer PORT
                 À la suite&#xa0;: interroge aussi le manipulateur sur ce port.

Les options de la bibliothèque graphique, comme -platform et -style, sont admises aussi. Le guide est sous Aide.
</translation>
    </message>
</context>
<context>
    <name>ConnectionStrip</name>
    <message>
        <source>Not connected: nothing is sent, and what you type now is forgotten when a keyer is connected.</source>
        <translation>Non connecté&#xa0;: rien n’est émis, et ce que vous tapez maintenant sera oublié à la connexion d’un manipulateur.</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Choisir le port…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Choisir le port</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Vérifier les ports…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Vérifier les ports</translation>
    </message>
    <message>
        <source>The computer goes to sleep: nothing is sent now, and what you enter waits until you take Pause off.</source>
        <translation>L’ordinateur se met en veille&#xa0;: rien n’est émis maintenant, et ce que vous entrez attend que vous arrêtiez Pause.</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Choisir le port…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Choisir le port</translation>
    </message>
    <message>
        <source>Your call sign</source>
        <translation>Votre indicatif</translation>
    </message>
    <message>
        <source>Sent for each ` in a message</source>
        <translation>Émis pour chaque ` d’un message</translation>
    </message>
    <message>
        <source>Enter your own call sign.</source>
        <translation>Entrez votre propre indicatif.</translation>
    </message>
    <message>
        <source>Press F1 to send CQ, or type. Esc stops at once.</source>
        <translation>Pressez F1 pour émettre CQ, ou tapez. Échap arrête aussitôt.</translation>
    </message>
    <message>
        <source>Try without a keyer</source>
        <translation>Essayer sans manipulateur</translation>
    </message>
    <message>
        <source>Starts a keyer made of software, which keys nothing on the air</source>
        <translation>Démarre un manipulateur logiciel, qui ne manipule rien sur l’air</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Vérifier les ports…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Vérifier les ports</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Close first steps</source>
        <translation>Fermer les premiers pas</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connecté à %1.</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port.</source>
        <translation>Branchez le manipulateur, et dites Oui à son port. S’il était déjà branché, choisissez son port.</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Étape %1, faite</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Étape %1</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port. What you type until then is not sent, and is forgotten.</source>
        <translation>Branchez le manipulateur, et dites Oui à son port. S’il était déjà branché, choisissez son port. Ce que vous tapez d’ici là n’est pas émis, et est oublié.</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>en</source>
        <extracomment>The folder of docs/guide that is in this language; as it is where there is none.</extracomment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>GuideButton</name>
    <message>
        <source>Guide to these settings</source>
        <translation>Guide de ces réglages</translation>
    </message>
    <message>
        <source>Opens the guide where these settings are explained.</source>
        <translation>Ouvre le guide là où ces réglages sont expliqués.</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Quorvel Guide</source>
        <translation>Guide de Quorvel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Searches all chapters (Ctrl+F). Enter goes to the next place.</source>
        <translation>Cherche dans tous les chapitres (Ctrl+F). Entrée va à l’endroit suivant.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Endroits trouvés</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>Places found: %1</source>
        <translation>Endroits trouvés : %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>Endroit %1 sur %2</translation>
    </message>
    <message>
        <source>The first %1 places</source>
        <translation>Les %1 premiers endroits</translation>
    </message>
</context>
<context>
    <name>KeyGuard</name>
    <message>
        <source>The key guard does not run: should Quorvel crash or hang while tune is on, the key stays down. Install Quorvel again.</source>
        <translation>Le gardien de clé ne tourne pas&#xa0;: si Quorvel plante ou se fige pendant l’accord, la clé reste baissée. Réinstallez Quorvel.</translation>
    </message>
    <message>
        <source>Quorvel did not react for %1 s while tune was on, and the key was let go of.</source>
        <translation>Quorvel n’a pas réagi pendant %1 s en plein accord, et la clé a été relâchée.</translation>
    </message>
</context>
<context>
    <name>KeyboardView</name>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Non connecté&#xa0;: rien n’est émis</translation>
    </message>
    <message>
        <source>Nothing waits to be sent</source>
        <translation>Rien n’attend d’être émis</translation>
    </message>
    <message>
        <source>Characters still to be sent: %1</source>
        <translation>Caractères encore à émettre&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>KeyedWavePicture</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>neutre</translation>
    </message>
    <message>
        <source>as set</source>
        <translation>réglé</translation>
    </message>
</context>
<context>
    <name>KeyedWaveView</name>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>Dit %1, dah %2, gap %3, letter space %4</source>
        <translation>Point %1, trait %2, silence %3, espace entre lettres %4</translation>
    </message>
    <message>
        <source>%1, first element %2 longer</source>
        <translation>%1, premier élément allongé de %2</translation>
    </message>
    <message>
        <source>&amp;Picture at</source>
        <translation>&amp;Image à</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Keyed wave of %1</source>
        <translation>Onde manipulée de %1</translation>
    </message>
    <message>
        <source>The letters %1 as they are keyed with these settings, in front of plain keying at the same speed. The lines of the grid are one dit apart.</source>
        <translation>Les lettres %1 telles qu’elles sont manipulées avec ces réglages, devant une manipulation neutre à la même vitesse. Les lignes de la grille sont espacées d’un point.</translation>
    </message>
    <message>
        <source>The keyer&apos;s speed pot is at this speed, and the picture follows it.</source>
        <translation>Le potentiomètre de vitesse du manipulateur est sur cette vitesse, et l’image le suit.</translation>
    </message>
    <message>
        <source>The speed that the picture is drawn for. It follows the keyer&apos;s speed pot once the keyer is connected.</source>
        <translation>La vitesse pour laquelle l’image est tracée. Elle suit le potentiomètre du manipulateur une fois celui-ci connecté.</translation>
    </message>
</context>
<context>
    <name>KeyerNotice</name>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
</context>
<context>
    <name>KeyerStatusLine</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>The machine sleeps: %1 is closed</source>
        <translation>L’ordinateur est en veille&#xa0;: %1 est fermé</translation>
    </message>
    <message>
        <source>Transmitting on %1: tune is on</source>
        <translation>Émission sur %1&#xa0;: accord en cours</translation>
    </message>
    <message>
        <source>Connected to %1, waiting for the keyer&apos;s first byte</source>
        <translation>Connecté à %1, en attente du premier octet du manipulateur</translation>
    </message>
    <message>
        <source>Connected to %1: idle</source>
        <translation>Connecté à %1&#xa0;: au repos</translation>
    </message>
    <message>
        <source>Connected to %1: sending</source>
        <translation>Connecté à %1&#xa0;: émet</translation>
    </message>
    <message>
        <source>Connected to %1: break-in (paddle)</source>
        <translation>Connecté à %1&#xa0;: break-in (palettes)</translation>
    </message>
    <message>
        <source>Connected to %1: buffer full</source>
        <translation>Connecté à %1&#xa0;: tampon plein</translation>
    </message>
    <message>
        <source>Connected to %1: paused</source>
        <translation>Connecté à %1&#xa0;: en pause</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>high-speed CW</source>
        <translation>CW rapide</translation>
    </message>
    <message>
        <source>beacon again in %1 s</source>
        <translation>balise dans %1 s</translation>
    </message>
    <message>
        <source>beacon on</source>
        <translation>balise en marche</translation>
    </message>
</context>
<context>
    <name>KeyingRecord</name>
    <message>
        <source>Quorvel ended while it was sending. The rest was not sent, and the key is up.</source>
        <translation>Quorvel s’est arrêté en pleine émission. Le reste n’a pas été émis, et la clé est relevée.</translation>
    </message>
    <message>
        <source>Quorvel ended while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Quorvel s’est arrêté pendant l’accord. La clé est peut-être restée baissée&#xa0;; elle vient d’être relâchée.</translation>
    </message>
    <message>
        <source>The keyer was unplugged while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Le manipulateur a été débranché pendant l’accord. La clé est peut-être restée baissée&#xa0;; elle vient d’être relâchée.</translation>
    </message>
</context>
<context>
    <name>LoggerSocket</name>
    <message>
        <source>Loggers: there is no such port</source>
        <translation>Logs&#xa0;: ce port n’existe pas</translation>
    </message>
    <message>
        <source>Loggers: port %1</source>
        <translation>Logs&#xa0;: port %1</translation>
    </message>
    <message>
        <source>Loggers: port %1 cannot be had: %2</source>
        <translation>Logs&#xa0;: port %1 impossible à obtenir&#xa0;: %2</translation>
    </message>
    <message>
        <source>Loggers: port %1 is taken by %2</source>
        <translation>Logs&#xa0;: port %1 pris par %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from port %2</source>
        <translation>Logs&#xa0;: port %1, dernier du port %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from %2</source>
        <translation>Logs&#xa0;: port %1, dernier de %2</translation>
    </message>
</context>
<context>
    <name>MBPreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvel</source>
        <translation>Quorvel</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Message 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Message 2</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Message 3</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Message 4</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Message 5</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Message 6</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Message 7</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Message 8</translation>
    </message>
    <message>
        <source>&amp;Their call</source>
        <translation>&amp;Indicatif</translation>
    </message>
    <message>
        <source>Their call</source>
        <translation>Correspondant</translation>
    </message>
    <message>
        <source>The other station&apos;s call sign; ~ in a message stands for it</source>
        <translation>L’indicatif du correspondant&#xa0;; ~ le représente dans un message</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Numéro</translation>
    </message>
    <message>
        <source>Decrement serial number</source>
        <translation>Diminuer le numéro de série</translation>
    </message>
    <message>
        <source>One less</source>
        <translation>Un de moins</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>The number of this contact; # in a message stands for it</source>
        <translation>Le numéro de ce contact&#xa0;; # le représente dans un message</translation>
    </message>
    <message>
        <source>Increment serial number</source>
        <translation>Augmenter le numéro de série</translation>
    </message>
    <message>
        <source>One more</source>
        <translation>Un de plus</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop sending at once and forget the text</source>
        <translation>Cesser d’émettre aussitôt et oublier le texte</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Accord</translation>
    </message>
    <message>
        <source>Key the transmitter steadily</source>
        <translation>Manipuler l’émetteur en continu</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Hold the text back</source>
        <translation>Retenir le texte</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>CW rapide</translation>
    </message>
    <message>
        <source>Send at the high speed of the preferences</source>
        <translation>Émettre à la grande vitesse des préférences</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Repeat the next message until stopped</source>
        <translation>Répéter le prochain message jusqu’à l’arrêt</translation>
    </message>
    <message>
        <source>Keyer status</source>
        <translation>État du manipulateur</translation>
    </message>
    <message>
        <source>What the keyer is doing</source>
        <translation>Ce que fait le manipulateur</translation>
    </message>
    <message>
        <source>Characters that are still to be sent</source>
        <translation>Caractères qui restent à émettre</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>É&amp;mettre</translation>
    </message>
    <message>
        <source>&amp;Keyer</source>
        <translation>Mani&amp;pulateur</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;Contact</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;High-speed CW</source>
        <translation>CW &amp;rapide</translation>
    </message>
    <message>
        <source>&amp;Their Call</source>
        <translation>&amp;Correspondant</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>C&amp;lavier</translation>
    </message>
    <message>
        <source>Ne&amp;xt Contact</source>
        <translation>Contact &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Wipe Their Call</source>
        <translation>&amp;Effacer le correspondant</translation>
    </message>
    <message>
        <source>&amp;Increment Serial Number</source>
        <translation>&amp;Augmenter le numéro de série</translation>
    </message>
    <message>
        <source>&amp;Decrement Serial Number</source>
        <translation>&amp;Diminuer le numéro de série</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;About Quorvel</source>
        <translation>À &amp;propos de Quorvel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source> %1 s</source>
        <translation> %1 s</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>What is typed here is sent</source>
        <translation>Ce qui est tapé ici est émis</translation>
    </message>
    <message>
        <source>Tune was let go of after %1 s.</source>
        <translation>L’accord a été relâché après %1 s.</translation>
    </message>
    <message>
        <source>Type here to send</source>
        <translation>Tapez ici pour émettre</translation>
    </message>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Non connecté&#xa0;: rien n’est émis</translation>
    </message>
    <message>
        <source>What you send waits for the paddle to be free: Esc drops it</source>
        <translation>Ce que vous émettez attend que les palettes soient libres&#xa0;: Échap l’abandonne</translation>
    </message>
    <message>
        <source>Typing here sends again: End goes to the end</source>
        <translation>Ce que vous tapez ici fait réémettre&#xa0;: Fin va à la fin</translation>
    </message>
    <message>
        <source>. </source>
        <translation>. </translation>
    </message>
    <message>
        <source>TRANSMITTING – Quorvel</source>
        <translation>ÉMISSION – Quorvel</translation>
    </message>
    <message>
        <source>Whether the speed is the knob&apos;s, or set from the computer</source>
        <translation>Si la vitesse est celle du bouton, ou réglée depuis l’ordinateur</translation>
    </message>
    <message>
        <source>The speed; a click goes back to that of the keyer&apos;s knob</source>
        <translation>La vitesse&#xa0;; un clic revient à celle du bouton du manipulateur</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>P&amp;lus vite</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Plus l&amp;ent</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Un peu plus vite</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Un peu plus lent</translation>
    </message>
    <message>
        <source>Speed of the &amp;Knob</source>
        <translation>Vitesse du bo&amp;uton</translation>
    </message>
    <message>
        <source>&amp;Check Ports…</source>
        <translation>&amp;Vérifier les ports…</translation>
    </message>
    <message>
        <source>&amp;Try Without a Keyer</source>
        <translation>&amp;Essayer sans manipulateur</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Vérifier les ports…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Vérifier les ports</translation>
    </message>
    <message>
        <source>&amp;Accept Text from Loggers</source>
        <translation>Accepter le &amp;texte des logs</translation>
    </message>
    <message>
        <source>⚠ TRANSMITTING: tune is on. Press Esc to let go.</source>
        <translation>⚠ ÉMISSION&#xa0;: accord en cours. Échap pour relâcher.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>W&amp;indow</source>
        <translation>V&amp;ue</translation>
    </message>
    <message>
        <source>&amp;Sent</source>
        <translation>&amp;Émis</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MemoryGauge</name>
    <message>
        <source>Keyer memory</source>
        <translation>Mémoire du manipulateur</translation>
    </message>
    <message>
        <source>How the six messages share the keyer&apos;s memory, a byte a character. One byte always stays free.</source>
        <translation>Comment les six messages se partagent la mémoire du manipulateur, un octet par caractère. Un octet reste toujours libre.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes used</source>
        <translation>%1 octets occupés sur %2</translation>
    </message>
    <message>
        <source>%1; left out: %2</source>
        <translation>%1&#xa0;; écartés&#xa0;: %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>MessageButton</name>
    <message>
        <source>waits for the paddle</source>
        <translation>attend les palettes</translation>
    </message>
</context>
<context>
    <name>MessageButtons</name>
    <message>
        <source>Message %1: %2</source>
        <translation>Message %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Waits for the paddle: %1</source>
        <translation>Attend les palettes&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
</context>
<context>
    <name>ModeSwitches</name>
    <message>
        <source>High-speed CW needs a keyer, and none is connected</source>
        <translation>La CW rapide demande un manipulateur, et aucun n’est connecté</translation>
    </message>
</context>
<context>
    <name>NamedProfile</name>
    <message>
        <source>a version 2 keyer, firmware 23</source>
        <translation>un manipulateur de version 2, microprogramme 23</translation>
    </message>
    <message>
        <source>echoes after the letter space, &quot;|&quot; too; keys &quot;?&quot; for what has no Morse</source>
        <translation>écho après l’espace entre lettres, &quot;|&quot; compris&#xa0;; manipule &quot;?&quot; pour ce qui n’a pas de code morse</translation>
    </message>
    <message>
        <source>never echoes the text, whatever the host has set</source>
        <translation>ne renvoie jamais le texte en écho, quoi que l’hôte ait réglé</translation>
    </message>
    <message>
        <source>sends a status byte after the version byte</source>
        <translation>envoie un octet d’état après l’octet de version</translation>
    </message>
    <message>
        <source>sends the last echo and the idle status back to back</source>
        <translation>envoie le dernier écho et l’état de repos coup sur coup</translation>
    </message>
    <message>
        <source>the same, the idle status first</source>
        <translation>de même, l’état de repos d’abord</translation>
    </message>
    <message>
        <source>asks for a pause at 21 waiting bytes, and again for every more</source>
        <translation>demande une pause à 21 octets en attente, et de nouveau à chaque octet de plus</translation>
    </message>
    <message>
        <source>drops the key in mid-letter when the buffer is cleared</source>
        <translation>relâche la clé en pleine lettre quand le tampon est vidé</translation>
    </message>
    <message>
        <source>restarts when the port is opened and is deaf for 1.3 s</source>
        <translation>redémarre à l’ouverture du port et reste sourd 1,3 s</translation>
    </message>
    <message>
        <source>beeps for half a second before it obeys its first command</source>
        <translation>émet un bip d’une demi-seconde avant d’obéir à la première commande</translation>
    </message>
    <message>
        <source>throws a loaded memory away without a word</source>
        <translation>jette sans un mot une mémoire chargée</translation>
    </message>
    <message>
        <source>reports break-in by a single C2 first</source>
        <translation>signale d’abord le break-in par un seul C2</translation>
    </message>
    <message>
        <source>is idle for the host until the paddle has keyed for 160 ms</source>
        <translation>est au repos pour l’hôte jusqu’à 160 ms de manipulation aux palettes</translation>
    </message>
    <message>
        <source>keys a letter once more that a pause came into</source>
        <translation>manipule une seconde fois la lettre dans laquelle une pause est tombée</translation>
    </message>
    <message>
        <source>echoes the letter that the paddle cut before the break-in</source>
        <translation>renvoie l’écho de la lettre que les palettes ont coupée avant le break-in</translation>
    </message>
    <message>
        <source>keys what waited when the paddle has rested, unless the host clears it</source>
        <translation>manipule ce qui attendait quand les palettes sont au repos, si l’hôte ne l’efface pas</translation>
    </message>
    <message>
        <source>stays at the last speed when the host gives it back to the knob</source>
        <translation>garde la dernière vitesse quand l’hôte la rend au bouton</translation>
    </message>
    <message>
        <source>reports the knob to a host, and does not obey it</source>
        <translation>signale le bouton à l’hôte et ne lui obéit pas</translation>
    </message>
    <message>
        <source>asks for a pause by C1, without the bit for busy</source>
        <translation>demande une pause par C1, sans le bit d’occupation</translation>
    </message>
    <message>
        <source>takes a push-button in the midst of text for a break-in</source>
        <translation>prend un bouton-poussoir au milieu du texte pour un break-in</translation>
    </message>
    <message>
        <source>ends a tune for the paddle, a letter or a message, without a word</source>
        <translation>met fin sans un mot à l’accord pour les palettes, une lettre ou un message</translation>
    </message>
    <message>
        <source>swallows a tune that begins in the midst of text</source>
        <translation>avale un accord qui commence au milieu du texte</translation>
    </message>
    <message>
        <source>says and does nothing for 0.44 s behind its version byte</source>
        <translation>ne dit et ne fait rien pendant 0,44 s après son octet de version</translation>
    </message>
    <message>
        <source>swallows text for 0.1 s after the buffer was cleared</source>
        <translation>avale le texte pendant 0,1 s après que le tampon a été vidé</translation>
    </message>
    <message>
        <source>reports press and release of a push-button together, at the release</source>
        <translation>signale l’appui et le relâchement d’un bouton-poussoir ensemble, au relâchement</translation>
    </message>
</context>
<context>
    <name>NamedTrouble</name>
    <message>
        <source>bytes that do not arrive</source>
        <translation>octets qui n’arrivent pas</translation>
    </message>
    <message>
        <source>bytes that arrive twice</source>
        <translation>octets qui arrivent deux fois</translation>
    </message>
    <message>
        <source>bytes of which a bit is wrong</source>
        <translation>octets dont un bit est faux</translation>
    </message>
    <message>
        <source>each byte is up to so much late, by chance</source>
        <translation>chaque octet a au hasard jusqu’à autant de retard</translation>
    </message>
    <message>
        <source>each byte is so much late, as over a network</source>
        <translation>chaque octet a autant de retard, comme par un réseau</translation>
    </message>
    <message>
        <source>the host gets what has come as often as this, in one read</source>
        <translation>l’hôte reçoit à cet intervalle ce qui est venu, en une seule lecture</translation>
    </message>
    <message>
        <source>no character from the keyer arrives</source>
        <translation>aucun caractère du manipulateur n’arrive</translation>
    </message>
    <message>
        <source>nobody takes what the host sends</source>
        <translation>personne ne prend ce que l’hôte envoie</translation>
    </message>
    <message>
        <source>the keyer starts anew so long after the port was opened</source>
        <translation>le manipulateur redémarre ce temps-là après l’ouverture du port</translation>
    </message>
    <message>
        <source>the port goes so long after it was opened, and comes back; the keyer keeps its power</source>
        <translation>le port disparaît ce temps-là après son ouverture, et revient&#xa0;; le manipulateur garde son alimentation</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close notice</source>
        <translation>Fermer l’avis</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>PortCheckCommand</name>
    <message>
        <source>%1 is not asked: it is not there, or not free.</source>
        <translation>%1 n’est pas interrogé&#xa0;: il est absent, ou pas libre.</translation>
    </message>
    <message>
        <source>The keyer on %1</source>
        <translation>Le manipulateur sur %1</translation>
    </message>
</context>
<context>
    <name>PortCheckWindow</name>
    <message>
        <source>Check Ports</source>
        <translation>Vérifier les ports</translation>
    </message>
    <message>
        <source>What is in the way of each port, and what to do about it. Looking opens no port. Commands are for a terminal.</source>
        <translation>Ce qui gêne chaque port, et que faire. Regarder n’ouvre aucun port. Les commandes sont pour un terminal.</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Check &amp;again</source>
        <translation>&amp;Vérifier de nouveau</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copier le &amp;rapport</translation>
    </message>
</context>
<context>
    <name>PortEntryView</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>Ask the keyer</source>
        <translation>Interroger le manipulateur</translation>
    </message>
    <message>
        <source>Opens the port for a moment, and has a keyer send a character back. Nothing is keyed by it; but opening raises the lines DTR and RTS, which key a transmitter that is wired to them.</source>
        <translation>Ouvre le port un instant, et fait renvoyer un caractère au manipulateur. Rien n’en est manipulé&#xa0;; mais l’ouverture lève les lignes DTR et RTS, qui manipulent un émetteur qui y est relié.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogation…</translation>
    </message>
</context>
<context>
    <name>PortJudge</name>
    <message>
        <source>USB device %1:%2</source>
        <translation>Périphérique USB %1:%2</translation>
    </message>
    <message>
        <source>You may not open it yet: you are a member of the group %1, but this session began before that.</source>
        <translation>Vous ne pouvez pas encore l’ouvrir&#xa0;: vous êtes membre du groupe %1, mais cette session a commencé avant.</translation>
    </message>
    <message>
        <source>Log out, and log in again.</source>
        <translation>Fermez la session, et rouvrez-la.</translation>
    </message>
    <message>
        <source>You may not open it: the members of the group %1 may.</source>
        <translation>Vous ne pouvez pas l’ouvrir&#xa0;: les membres du groupe %1 le peuvent.</translation>
    </message>
    <message>
        <source>Become a member, then log out and log in again:</source>
        <translation>Devenez membre, puis fermez la session et rouvrez-la&#xa0;:</translation>
    </message>
    <message>
        <source>You may not open it: root alone may.</source>
        <translation>Vous ne pouvez pas l’ouvrir&#xa0;: root seul le peut.</translation>
    </message>
    <message>
        <source>See who may:</source>
        <translation>Voyez qui le peut&#xa0;:</translation>
    </message>
    <message>
        <source>Whoever sits at this machine may as well, but this session is not the one at its screen.</source>
        <translation>Quiconque est assis à cette machine le peut aussi, mais cette session n’est pas celle de son écran.</translation>
    </message>
    <message>
        <source>With Quorvel&apos;s package installed, whoever sits at the machine may as well: pull the adapter out and plug it in again.</source>
        <translation>Avec le paquet de Quorvel installé, quiconque est assis à la machine le peut aussi&#xa0;: débranchez l’adaptateur et rebranchez-le.</translation>
    </message>
    <message>
        <source>It has just gone.</source>
        <translation>Il vient de disparaître.</translation>
    </message>
    <message>
        <source>Plug it in again, and use another cable or socket if it goes by itself.</source>
        <translation>Rebranchez-le, et prenez un autre câble ou une autre prise s’il disparaît de lui-même.</translation>
    </message>
    <message>
        <source>Another program has it open: %1.</source>
        <translation>Un autre programme l’a ouvert&#xa0;: %1.</translation>
    </message>
    <message>
        <source>End that program. This shows all that have it, those of other users too:</source>
        <translation>Arrêtez ce programme. Ceci montre tous ceux qui l’ont, aussi ceux d’autres utilisateurs&#xa0;:</translation>
    </message>
    <message>
        <source>The service for modems, ModemManager, may send its questions to this port when it is plugged in, and a keyer may key them.</source>
        <translation>Le service des modems, ModemManager, peut envoyer ses questions à ce port quand on le branche, et un manipulateur peut les manipuler.</translation>
    </message>
    <message>
        <source>Keep it away with this rule, then plug the adapter in again:</source>
        <translation>Tenez-le à l’écart par cette règle, puis rebranchez l’adaptateur&#xa0;:</translation>
    </message>
    <message>
        <source>The service for braille displays, brltty, takes this chip for one of them, and may take the port away.</source>
        <translation>Le service des afficheurs braille, brltty, prend cette puce pour l’un d’eux, et peut emporter le port.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service:</source>
        <translation>Si personne ici ne lit le braille, retirez le service&#xa0;:</translation>
    </message>
    <message>
        <source>The adapter gathers what it receives for %1 ms, which could not be lowered: the paddle&apos;s break-in and the echo come late.</source>
        <translation>L’adaptateur rassemble ce qu’il reçoit pendant %1 ms, qui n’ont pas pu être abaissées&#xa0;: le break-in des palettes et l’écho viennent tard.</translation>
    </message>
    <message>
        <source>Lower it until the adapter is plugged in again:</source>
        <translation>Abaissez-les jusqu’au prochain branchement de l’adaptateur&#xa0;:</translation>
    </message>
    <message>
        <source>Many a board with this chip starts anew when its port is opened. Quorvel asks such a keyer again after 2 s.</source>
        <translation>Bien des cartes à cette puce redémarrent quand leur port est ouvert. Quorvel interroge de nouveau un tel manipulateur après 2 s.</translation>
    </message>
    <message>
        <source>A board of this kind leaves its program when a port at 1200 baud is closed, which is a keyer&apos;s speed.</source>
        <translation>Une carte de ce genre quitte son programme quand un port à 1200 bauds est fermé, ce qui est la vitesse d’un manipulateur.</translation>
    </message>
    <message>
        <source>Pull it out and plug it in again after Quorvel has left it.</source>
        <translation>Débranchez-la et rebranchez-la après que Quorvel l’a quittée.</translation>
    </message>
    <message>
        <source>It is open, and nothing answers.</source>
        <translation>Il est ouvert, et rien ne répond.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power? A keyer that another program has set to a speed other than 1200 baud keeps it until it has been without power.</source>
        <translation>Est-ce le port du manipulateur&#xa0;? Le manipulateur est-il alimenté&#xa0;? Un manipulateur qu’un autre programme a mis à une vitesse autre que 1200 bauds la garde jusqu’à ce qu’il ait été privé d’alimentation.</translation>
    </message>
    <message>
        <source>It is open, and the keyer answers.</source>
        <translation>Il est ouvert, et le manipulateur répond.</translation>
    </message>
    <message>
        <source>Quorvel has it open.</source>
        <translation>Quorvel l’a ouvert.</translation>
    </message>
    <message>
        <source>Nothing is in the way. Whether a keyer is on it, only asking tells.</source>
        <translation>Rien ne gêne. S’il y a un manipulateur, seule une question le dit.</translation>
    </message>
    <message>
        <source>%1, the port chosen last</source>
        <translation>%1, le dernier port choisi</translation>
    </message>
    <message>
        <source>It is plugged in, but no driver has taken it.</source>
        <translation>Il est branché, mais aucun pilote ne l’a pris.</translation>
    </message>
    <message>
        <source>Have the kernel load its driver. If there is none, the system may have been updated since it was started: start it anew.</source>
        <translation>Faites charger son pilote par le noyau. S’il n’y en a pas, le système a peut-être été mis à jour depuis son démarrage&#xa0;: redémarrez-le.</translation>
    </message>
    <message>
        <source>A program has taken it away from its driver: %1.</source>
        <translation>Un programme l’a enlevé à son pilote&#xa0;: %1.</translation>
    </message>
    <message>
        <source>End that program, then plug the adapter in again.</source>
        <translation>Arrêtez ce programme, puis rebranchez l’adaptateur.</translation>
    </message>
    <message>
        <source>It was taken away from its driver, it seems by the service for braille displays, brltty, which takes the chip for one of them.</source>
        <translation>Il a été enlevé à son pilote, semble-t-il par le service des afficheurs braille, brltty, qui prend la puce pour l’un d’eux.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service, then plug the adapter in again:</source>
        <translation>Si personne ici ne lit le braille, retirez le service, puis rebranchez l’adaptateur&#xa0;:</translation>
    </message>
    <message>
        <source>A program of another user has taken it away from its driver.</source>
        <translation>Un programme d’un autre utilisateur l’a enlevé à son pilote.</translation>
    </message>
    <message>
        <source>See which programs use USB devices directly:</source>
        <translation>Voyez quels programmes utilisent directement des périphériques USB&#xa0;:</translation>
    </message>
    <message>
        <source>%1 in USB socket %2</source>
        <translation>%1 dans la prise USB %2</translation>
    </message>
    <message>
        <source>The driver %1 has taken it, which makes no port of it.</source>
        <translation>Le pilote %1 l’a pris, et n’en fait pas un port.</translation>
    </message>
    <message>
        <source>Have that driver let go of all its devices, then plug the adapter in again:</source>
        <translation>Faites lâcher à ce pilote tous ses périphériques, puis rebranchez l’adaptateur&#xa0;:</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Il n’est pas là.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, it has another name now, as after a change of adapter: choose that in File &gt; Preferences…, General.</source>
        <translation>Branchez le manipulateur. S’il l’est, il a maintenant un autre nom, comme après un changement d’adaptateur&#xa0;: choisissez-le dans Fichier &gt; Préférences…, Général.</translation>
    </message>
    <message>
        <source>USB adapters</source>
        <translation>Adaptateurs USB</translation>
    </message>
    <message>
        <source>No USB serial adapter is there.</source>
        <translation>Aucun adaptateur USB-série n’est là.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, try another socket and another cable: many a cable charges only. This shows what is plugged in:</source>
        <translation>Branchez le manipulateur. S’il l’est, essayez une autre prise et un autre câble&#xa0;: bien des câbles ne font que charger. Ceci montre ce qui est branché&#xa0;:</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>Cette machine</translation>
    </message>
    <message>
        <source>udev does not run: what is plugged in now goes unnoticed, and may be opened by root alone.</source>
        <translation>udev ne tourne pas&#xa0;: ce qui est branché maintenant passe inaperçu, et root seul peut l’ouvrir.</translation>
    </message>
    <message>
        <source>Start it:</source>
        <translation>Démarrez-le&#xa0;:</translation>
    </message>
    <message>
        <source>A keyer answers on it.</source>
        <translation>Un manipulateur y répond.</translation>
    </message>
    <message>
        <source>Something answers on it, but not as a keyer does at 1200 baud.</source>
        <translation>Quelque chose y répond, mais pas comme un manipulateur à 1200 bauds.</translation>
    </message>
    <message>
        <source>It is another device&apos;s port, or the keyer has been set to another speed by another program: take its power away for a moment.</source>
        <translation>C’est le port d’un autre appareil, ou un autre programme a mis le manipulateur à une autre vitesse&#xa0;: coupez-lui l’alimentation un instant.</translation>
    </message>
    <message>
        <source>Nothing answers on it.</source>
        <translation>Rien n’y répond.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power?</source>
        <translation>Est-ce le port du manipulateur&#xa0;? Le manipulateur est-il alimenté&#xa0;?</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>Il n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>Check the ports again.</source>
        <translation>Vérifiez les ports de nouveau.</translation>
    </message>
</context>
<context>
    <name>PortReport</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralPane</name>
    <message>
        <source>My &amp;call</source>
        <translation>Mon &amp;indicatif</translation>
    </message>
    <message>
        <source>My call</source>
        <translation>Mon indicatif</translation>
    </message>
    <message>
        <source>Your own call sign: letters, digits and the slash. It is sent for each ` in a message.</source>
        <translation>Votre propre indicatif&#xa0;: lettres, chiffres et barre oblique. Il est émis pour chaque ` d’un message.</translation>
    </message>
    <message>
        <source>&amp;Serial port</source>
        <translation>Port &amp;série</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Where the keyer is plugged in. Choosing a port connects at once, also the same one again; leaving the old one takes two seconds.</source>
        <translation>Où le manipulateur est branché. Choisir un port connecte aussitôt, même s’il s’agit du même&#xa0;; quitter l’ancien prend deux secondes.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (absent)</translation>
    </message>
    <message>
        <source>Tune: &amp;let go after</source>
        <translation>Accord&#xa0;: re&amp;lâcher après</translation>
    </message>
    <message>
        <source>Tune: let go after</source>
        <translation>Accord&#xa0;: relâcher après</translation>
    </message>
    <message>
        <source>How long Tune may key the transmitter down before it lets go by itself. The strip in the main window counts the seconds.</source>
        <translation>Combien de temps Accord peut manipuler l’émetteur avant de relâcher de lui-même. Le bandeau de la fenêtre principale compte les secondes.</translation>
    </message>
    <message>
        <source>Accept text from loggers</source>
        <translation>Accepter le texte des logs</translation>
    </message>
    <message>
        <source>Whether logging programs of this machine may send through Quorvel. You and the paddle come before them.</source>
        <translation>Si les logiciels de log de cette machine peuvent émettre par Quorvel. Vous et les palettes passez avant eux.</translation>
    </message>
    <message>
        <source>&amp;Accept text from loggers</source>
        <translation>&amp;Accepter le texte des logs</translation>
    </message>
    <message>
        <source>Loggers&apos; &amp;port</source>
        <translation>&amp;Port des logs</translation>
    </message>
    <message>
        <source>Loggers&apos; port</source>
        <translation>Port des logs</translation>
    </message>
    <message>
        <source>The UDP port of this machine on which loggers are heard. Nearly all of them send to 6789.</source>
        <translation>Le port UDP de cette machine où les logiciels de log sont écoutés. Presque tous envoient à 6789.</translation>
    </message>
    <message>
        <source>Characters a&amp;head</source>
        <translation>&amp;Caractères d’avance</translation>
    </message>
    <message>
        <source>Characters ahead</source>
        <translation>Caractères d’avance</translation>
    </message>
    <message>
        <source>How many characters may be with the keyer before it has echoed the first. 1 is right for a keyer at this machine; over a network, more keep the spaces exact.</source>
        <translation>Combien de caractères peuvent être chez le manipulateur avant qu’il n’ait renvoyé le premier. 1 convient à un manipulateur branché à cette machine&#xa0;; par un réseau, davantage gardent les espaces exacts.</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralViewController</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Changing the serial port...</source>
        <translation>Changement de port série...</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>No serial port is present. Plug the keyer in.</source>
        <translation>Aucun port série n’est présent. Branchez le manipulateur.</translation>
    </message>
    <message>
        <source>Connected to %1; the keyer has not answered yet</source>
        <translation>Connecté à %1&#xa0;; le manipulateur n’a pas encore répondu</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesPane</name>
    <message>
        <source>Label of the button</source>
        <translation>Titre du bouton</translation>
    </message>
    <message>
        <source>Text to send</source>
        <translation>Texte à émettre</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Message &amp;1</translation>
    </message>
    <message>
        <source>Message 1 label</source>
        <translation>Titre du message 1</translation>
    </message>
    <message>
        <source>What the message&apos;s button in the main window says.</source>
        <translation>Ce que porte le bouton du message dans la fenêtre principale.</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Message 1</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F1.</source>
        <translation>Ce qu’émettent le bouton du message et F1.</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Message &amp;2</translation>
    </message>
    <message>
        <source>Message 2 label</source>
        <translation>Titre du message 2</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Message 2</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F2.</source>
        <translation>Ce qu’émettent le bouton du message et F2.</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Message &amp;3</translation>
    </message>
    <message>
        <source>Message 3 label</source>
        <translation>Titre du message 3</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Message 3</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F3.</source>
        <translation>Ce qu’émettent le bouton du message et F3.</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Message &amp;4</translation>
    </message>
    <message>
        <source>Message 4 label</source>
        <translation>Titre du message 4</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Message 4</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F4.</source>
        <translation>Ce qu’émettent le bouton du message et F4.</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Message &amp;5</translation>
    </message>
    <message>
        <source>Message 5 label</source>
        <translation>Titre du message 5</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Message 5</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F5.</source>
        <translation>Ce qu’émettent le bouton du message et F5.</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Message &amp;6</translation>
    </message>
    <message>
        <source>Message 6 label</source>
        <translation>Titre du message 6</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Message 6</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F6.</source>
        <translation>Ce qu’émettent le bouton du message et F6.</translation>
    </message>
    <message>
        <source>Message &amp;7</source>
        <translation>Message &amp;7</translation>
    </message>
    <message>
        <source>Message 7 label</source>
        <translation>Titre du message 7</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Message 7</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F7.</source>
        <translation>Ce qu’émettent le bouton du message et F7.</translation>
    </message>
    <message>
        <source>Message &amp;8</source>
        <translation>Message &amp;8</translation>
    </message>
    <message>
        <source>Message 8 label</source>
        <translation>Titre du message 8</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Message 8</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F8.</source>
        <translation>Ce qu’émettent le bouton du message et F8.</translation>
    </message>
    <message>
        <source>&amp;Beacon interval</source>
        <translation>Intervalle de &amp;balise</translation>
    </message>
    <message>
        <source>Beacon interval</source>
        <translation>Intervalle de balise</translation>
    </message>
    <message>
        <source>How long the beacon is silent before it sends its message again.</source>
        <translation>Combien de temps la balise se tait avant d’émettre de nouveau son message.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesViewController</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>their call</source>
        <translation>le correspondant</translation>
    </message>
    <message>
        <source>their call (%1)</source>
        <translation>le correspondant (%1)</translation>
    </message>
    <message>
        <source>In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. Between % and ^ the keyer sends high-speed CW, { joins the next two letters to one sign, and | is half a dit of space.</source>
        <translation>Dans un texte, ` représente votre indicatif (%1), # le numéro de série (%2) et ~ %3. Entre % et ^ le manipulateur émet en CW rapide, { réunit les deux lettres suivantes en un seul signe, et | est un demi-point d’espace.</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerPane</name>
    <message>
        <source>Groups of settings</source>
        <translation>Groupes de réglages</translation>
    </message>
    <message>
        <source>&amp;Keying</source>
        <translation>&amp;Manipulation</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>&amp;Pondération</translation>
    </message>
    <message>
        <source>Above 0 elements grow and the gaps after them shrink, for a heavier sound; below 0 it is lighter.</source>
        <translation>Au-dessus de 0, éléments plus longs et silences plus courts, pour un son plus lourd&#xa0;; au-dessous, plus léger.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Dah/dit &amp;ratio</source>
        <translation>&amp;Rapport trait/point</translation>
    </message>
    <message>
        <source>How many dits long a dah is: 3 is the standard, more gives a swing.</source>
        <translation>Longueur d’un trait en points&#xa0;: 3 est la norme, davantage donne du swing.</translation>
    </message>
    <message>
        <source> : 1</source>
        <translation> : 1</translation>
    </message>
    <message>
        <source>&amp;Compensation</source>
        <translation>&amp;Compensation</translation>
    </message>
    <message>
        <source>Added to every element and taken from the gap after it, for a transmitter that clips elements.</source>
        <translation>Ajouté à chaque élément et retiré du silence suivant, pour un émetteur qui rogne les éléments.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>First &amp;extension</source>
        <translation>E&amp;xtension initiale</translation>
    </message>
    <message>
        <source>Added once to the first element after receiving, for a transmitter that swallows its start.</source>
        <translation>Ajouté au premier élément après la réception, pour un émetteur qui en avale le début.</translation>
    </message>
    <message>
        <source>&amp;Farnsworth speed</source>
        <translation>Vitesse &amp;Farnsworth</translation>
    </message>
    <message>
        <source>While the speed is below this, letters are keyed at this speed and only the gaps between them are slow.</source>
        <translation>À une vitesse inférieure, les lettres sont manipulées à celle-ci, et seuls les espaces sont lents.</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Leaves six dits between words in place of seven.</source>
        <translation>Laisse six points entre les mots au lieu de sept.</translation>
    </message>
    <message>
        <source>C&amp;ontest spacing</source>
        <translation>&amp;Espacement contest</translation>
    </message>
    <message>
        <source>Padd&amp;le</source>
        <translation>Pa&amp;lettes</translation>
    </message>
    <message>
        <source>Key &amp;mode</source>
        <translation>M&amp;ode de clé</translation>
    </message>
    <message>
        <source>A squeeze: iambic B adds an element at its end, A none; ultimatic repeats one; a bug leaves the dahs to you.</source>
        <translation>Les deux serrées&#xa0;: iambic B ajoute un élément à la fin, A aucun&#xa0;; ultimatic en répète un&#xa0;; bug&#xa0;: traits à la main.</translation>
    </message>
    <message>
        <source>Ultimatic pr&amp;iority</source>
        <translation>Priorité &amp;Ultimatic</translation>
    </message>
    <message>
        <source>Which paddle wins while both are closed: with Normal, the one closed last. Needs the key mode Ultimatic.</source>
        <translation>Quelle palette l’emporte quand les deux sont fermées&#xa0;: avec Normale, la dernière. Demande le mode Ultimatic.</translation>
    </message>
    <message>
        <source>Remembers a paddle that is touched while another element is still being keyed.</source>
        <translation>Retient une palette touchée pendant qu’un autre élément est encore manipulé.</translation>
    </message>
    <message>
        <source>Dit/dah memor&amp;y</source>
        <translation>Mémoire &amp;points/traits</translation>
    </message>
    <message>
        <source>S&amp;witchpoint</source>
        <translation>Po&amp;int de bascule</translation>
    </message>
    <message>
        <source>Switchpoint</source>
        <translation>Point de bascule</translation>
    </message>
    <message>
        <source>From when in an element a touch counts for the next. Needs the memory.</source>
        <translation>À partir de quand, dans un élément, une touche compte pour le suivant. Demande la mémoire.</translation>
    </message>
    <message>
        <source> % of a dit</source>
        <translation> % d’un point</translation>
    </message>
    <message>
        <source>Dits on the right paddle and dahs on the left, as for a left-handed operator.</source>
        <translation>Points sur la palette droite et traits sur la gauche, comme pour un opérateur gaucher.</translation>
    </message>
    <message>
        <source>Swap &amp;paddles</source>
        <translation>Inverser les palett&amp;es</translation>
    </message>
    <message>
        <source>A pause of more than a dit between letters on the paddle becomes a full letter space.</source>
        <translation>Une pause de plus d’un point entre les lettres aux palettes devient un espace entre lettres entier.</translation>
    </message>
    <message>
        <source>A&amp;utospace</source>
        <translation>Espa&amp;ce automatique</translation>
    </message>
    <message>
        <source>The watchdog ends keying after 128 dits or dahs in a row, as from a paddle that is stuck. On here, nothing does.</source>
        <translation>Le chien de garde coupe après 128 points ou traits de suite, comme d’une palette coincée. Activé ici, rien ne coupe.</translation>
    </message>
    <message>
        <source>Disable watchdo&amp;g</source>
        <translation>Sans chien de &amp;garde</translation>
    </message>
    <message>
        <source>Echo to the computer</source>
        <translation>Écho vers l’ordinateur</translation>
    </message>
    <message>
        <source>The keyer tells the computer what you key on the paddle.</source>
        <translation>Le manipulateur signale à l’ordinateur ce que vous manipulez aux palettes.</translation>
    </message>
    <message>
        <source>Paddle e&amp;cho-back</source>
        <translation>Éc&amp;ho des palettes</translation>
    </message>
    <message>
        <source>The keyer reports each character that it has keyed. Off, the gaps between letters grow, and PTT may fall in them.</source>
        <translation>Le manipulateur signale chaque caractère manipulé. Désactivé, les espaces s’allongent, et le PTT peut y retomber.</translation>
    </message>
    <message>
        <source>Serial &amp;echo-back</source>
        <translation>Écho &amp;série</translation>
    </message>
    <message>
        <source>Leave serial echo-back on: without it, what the computer sends has longer gaps between its letters.</source>
        <translation>Laissez l’écho série activé&#xa0;: sans lui, ce que l’ordinateur émet a de plus longs espaces entre les lettres.</translation>
    </message>
    <message>
        <source>&amp;Sidetone and outputs</source>
        <translation>Effet local et sor&amp;ties</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Effet local</translation>
    </message>
    <message>
        <source>The keyer sounds what it keys.</source>
        <translation>Le manipulateur fait entendre ce qu’il manipule.</translation>
    </message>
    <message>
        <source>Sidetone o&amp;n</source>
        <translation>Effet local acti&amp;f</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>Pitch of the sidetone, for your ears only: it is not heard on the air. Needs the sidetone on.</source>
        <translation>Hauteur de l’effet local, pour vos oreilles seules&#xa0;: on ne l’entend pas sur l’air. Demande l’effet local.</translation>
    </message>
    <message>
        <source>Sounds what you key on the paddle, and is silent while the computer sends. Needs the sidetone on.</source>
        <translation>Fait entendre ce que vous manipulez aux palettes, et se tait quand l’ordinateur émet. Demande l’effet local.</translation>
    </message>
    <message>
        <source>&amp;Only for the paddle</source>
        <translation>&amp;Palettes seules</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Sorties de clé</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 1.</source>
        <translation>Manipule l’émetteur sur la sortie 1.</translation>
    </message>
    <message>
        <source>Key output &amp;1</source>
        <translation>Sortie de clé &amp;1</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 2.</source>
        <translation>Manipule l’émetteur sur la sortie 2.</translation>
    </message>
    <message>
        <source>Key output &amp;2</source>
        <translation>Sortie de clé &amp;2</translation>
    </message>
    <message>
        <source>Both are off: no transmitter is keyed.</source>
        <translation>Les deux désactivées&#xa0;: rien n’est manipulé.</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Switches the transmitter over before keying and back after it, in place of break-in by the radio itself.</source>
        <translation>Passe l’émetteur en émission avant la manipulation et l’en retire après, à la place du break-in de l’appareil.</translation>
    </message>
    <message>
        <source>PTT &amp;enabled</source>
        <translation>PTT a&amp;ctif</translation>
    </message>
    <message>
        <source>Lead-&amp;in</source>
        <translation>Ava&amp;nce</translation>
    </message>
    <message>
        <source>Wait between switching to transmit and the first element, for relays and amplifiers. Needs PTT enabled.</source>
        <translation>Délai entre le passage en émission et le premier élément, pour relais et amplificateurs. Demande PTT actif.</translation>
    </message>
    <message>
        <source>&amp;Tail</source>
        <translation>Mainti&amp;en</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after text from the computer, beyond a letter space. Needs PTT enabled.</source>
        <translation>Durée d’émission après un texte de l’ordinateur, au-delà d’un espace entre lettres. Demande PTT actif.</translation>
    </message>
    <message>
        <source>Paddle &amp;hang</source>
        <translation>Maintien palette&amp;s</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after the paddle: short to hear sooner, long to spare the relay. Needs PTT enabled.</source>
        <translation>Durée d’émission après les palettes&#xa0;: courte pour écouter plus tôt, longue pour le relais. Demande PTT actif.</translation>
    </message>
    <message>
        <source>word spaces</source>
        <translation>esp. de mot</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Vitesse</translation>
    </message>
    <message>
        <source>Speed pot</source>
        <translation>Potentiomètre de vitesse</translation>
    </message>
    <message>
        <source>Lo&amp;west speed</source>
        <translation>Vitesse mi&amp;nimale</translation>
    </message>
    <message>
        <source>Speed with the pot turned fully down.</source>
        <translation>Vitesse avec le potentiomètre au minimum.</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Plage</translation>
    </message>
    <message>
        <source>Speed added with the pot turned fully up. With more than 31 wpm its topmost readings are not shown.</source>
        <translation>Vitesse ajoutée, potentiomètre au maximum. Au-delà de 31 wpm, ses plus hautes valeurs ne sont pas affichées.</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>CW rapide</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>Déb&amp;it</translation>
    </message>
    <message>
        <source>Letters a minute while high-speed CW is on, as for meteor scatter. Holds from when it is next switched on.</source>
        <translation>Lettres par minute en CW rapide, comme pour le meteor scatter. Vaut dès la prochaine mise en marche.</translation>
    </message>
    <message>
        <source>St&amp;andalone</source>
        <translation>&amp;Autonome</translation>
    </message>
    <message>
        <source>&amp;Command speed</source>
        <translation>Vitesse de &amp;commande</translation>
    </message>
    <message>
        <source>Speed at which the keyer, working alone, answers what you set by paddle. Reaches it with Save to keyer.</source>
        <translation>Vitesse à laquelle le manipulateur, seul, répond aux palettes. Demande «&#xa0;Écrire dans le manipulateur&#xa0;».</translation>
    </message>
    <message>
        <source>A touch of the paddle breaks off a message that the keyer sends from its memory. Reaches the keyer with Save to keyer.</source>
        <translation>Une touche des palettes interrompt un message de la mémoire. Demande «&#xa0;Écrire dans le manipulateur&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Message break</source>
        <translation>Message &amp;interruptible</translation>
    </message>
    <message>
        <source>Serial numbers that the keyer counts by itself are sent short, as T for 0. Reaches the keyer with Save to keyer.</source>
        <translation>Les numéros que le manipulateur compte seul sont abrégés, comme T pour 0. Demande «&#xa0;Écrire dans le manipulateur&#xa0;».</translation>
    </message>
    <message>
        <source>C&amp;ut serial numbers</source>
        <translation>N&amp;uméros abrégés</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerViewController</name>
    <message>
        <source>WinKeyer</source>
        <translation>WinKeyer</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory could not be written.</source>
        <translation>La mémoire du manipulateur n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>Check that the keyer is connected.</source>
        <translation>Vérifiez que le manipulateur est connecté.</translation>
    </message>
</context>
<context>
    <name>QuorvelDelegate</name>
    <message>
        <source>The WinKeyer using serial port %1 has been unplugged.</source>
        <translation>Le WinKeyer qui utilise le port série %1 a été débranché.</translation>
    </message>
    <message>
        <source>Plug it back in, or choose another serial port in General preferences.</source>
        <translation>Rebranchez-le, ou choisissez un autre port série dans les préférences, sous Général.</translation>
    </message>
    <message>
        <source>The serial port %1 has been plugged in.</source>
        <translation>Le port série %1 a été branché.</translation>
    </message>
    <message>
        <source>Try to use this port to communicate with a WinKeyer?</source>
        <translation>Essayer ce port pour communiquer avec un WinKeyer&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>RegisterWords</name>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>%1 WPM, from the knob</source>
        <translation>%1 WPM, du bouton</translation>
    </message>
    <message>
        <source>%1; %2 WPM for now</source>
        <translation>%1 ; %2 WPM pour l’instant</translation>
    </message>
    <message>
        <source>iambic A</source>
        <translation>iambic A</translation>
    </message>
    <message>
        <source>ultimatic</source>
        <translation>ultimatic</translation>
    </message>
    <message>
        <source>bug</source>
        <translation>bug</translation>
    </message>
    <message>
        <source>iambic B</source>
        <translation>iambic B</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>trait</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>point</translation>
    </message>
    <message>
        <source>the last one closed</source>
        <translation>le dernier contact fermé</translation>
    </message>
    <message>
        <source>%1 Hz, for the paddle only</source>
        <translation>%1 Hz, palettes seules</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 to %2 WPM</source>
        <translation>%1 à %2 WPM</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 et 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Knob&apos;s range</source>
        <translation>Plage du bouton</translation>
    </message>
    <message>
        <source>Farnsworth</source>
        <translation>Farnsworth</translation>
    </message>
    <message>
        <source>Weighting</source>
        <translation>Pondération</translation>
    </message>
    <message>
        <source>Dah to dit</source>
        <translation>Trait sur point</translation>
    </message>
    <message>
        <source>%1 to 1</source>
        <translation>%1 pour 1</translation>
    </message>
    <message>
        <source>Key compensation</source>
        <translation>Compensation</translation>
    </message>
    <message>
        <source>First extension</source>
        <translation>Extension initiale</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Espace entre mots</translation>
    </message>
    <message>
        <source>%1 dits</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>Paddle keying</source>
        <translation>Manipulation des palettes</translation>
    </message>
    <message>
        <source>Ultimatic priority</source>
        <translation>Priorité ultimatic</translation>
    </message>
    <message>
        <source>Paddle swapped</source>
        <translation>Palettes inversées</translation>
    </message>
    <message>
        <source>Paddle memory</source>
        <translation>Mémoire des palettes</translation>
    </message>
    <message>
        <source>after %1 dit lengths</source>
        <translation>après %1 longueurs de point</translation>
    </message>
    <message>
        <source>Paddle watchdog</source>
        <translation>Surveillance des palettes</translation>
    </message>
    <message>
        <source>Autospace</source>
        <translation>Autospace</translation>
    </message>
    <message>
        <source>Paddle echo</source>
        <translation>Écho des palettes</translation>
    </message>
    <message>
        <source>Serial echo</source>
        <translation>Écho série</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Effet local</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Sorties de manipulation</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Lead-in</source>
        <translation>Avance</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>Hang time</source>
        <translation>Maintien des palettes</translation>
    </message>
    <message>
        <source>word space and %1 dits</source>
        <translation>espace entre mots et %1 points</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>RunTable</name>
    <message>
        <source>the record is damaged</source>
        <translation>le journal est endommagé</translation>
    </message>
</context>
<context>
    <name>RunText</name>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Sent by</source>
        <translation>Émis par</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>%1 LPM</source>
        <translation>%1 LPM</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Saisi</translation>
    </message>
    <message>
        <source>F%1 %2</source>
        <translation>F%1 %2</translation>
    </message>
    <message>
        <source>Push-button %1 %2</source>
        <translation>Bouton %1 %2</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Logger, port %1</source>
        <translation>Log, port %1</translation>
    </message>
    <message>
        <source>Logger %1</source>
        <translation>Log %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Émis</translation>
    </message>
    <message>
        <source>Stopped at character %1</source>
        <translation>Arrêté au caractère %1</translation>
    </message>
    <message>
        <source>Broken in on at character %1</source>
        <translation>Interrompu au caractère %1</translation>
    </message>
    <message>
        <source>Link lost at character %1</source>
        <translation>Liaison perdue au caractère %1</translation>
    </message>
</context>
<context>
    <name>ScopeWords</name>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>dit %1</source>
        <translation>point %1</translation>
    </message>
    <message>
        <source>dah %1</source>
        <translation>trait %1</translation>
    </message>
    <message>
        <source>space %1</source>
        <translation>espace %1</translation>
    </message>
    <message>
        <source>letter space %1</source>
        <translation>espace entre lettres %1</translation>
    </message>
    <message>
        <source>word space %1</source>
        <translation>espace entre mots %1</translation>
    </message>
    <message>
        <source>pause %1</source>
        <translation>pause %1</translation>
    </message>
    <message>
        <source>elements and spaces: %1</source>
        <translation>éléments et espaces : %1</translation>
    </message>
    <message>
        <source>Click and drag to measure, or use the arrow keys.</source>
        <translation>Pour mesurer : cliquer et tirer, ou les flèches.</translation>
    </message>
    <message>
        <source>One cursor is set.</source>
        <translation>Un curseur est placé.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 ms: %2</source>
        <translation>%1 ms : %2</translation>
    </message>
</context>
<context>
    <name>SentRecord</name>
    <message>
        <source>What you send cannot be recorded in %1: %2.</source>
        <translation>Ce que vous émettez ne peut être consigné dans %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The record of what was sent was damaged. It is kept as %1, and a new one has been begun.</source>
        <translation>Le journal des émissions était endommagé. Il est conservé sous %1, et un nouveau a été commencé.</translation>
    </message>
</context>
<context>
    <name>SentWindow</name>
    <message>
        <source>Sent</source>
        <translation>Émis</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>C&amp;hercher&#xa0;:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Words, a call sign, a key, a logger or a date</source>
        <translation>Des mots, un indicatif, une touche, un log ou une date</translation>
    </message>
    <message>
        <source>&amp;Keep a record of what is sent, for</source>
        <translation>&amp;Garder la trace de ce qui est émis, pendant</translation>
    </message>
    <message>
        <source>How long what is sent is kept</source>
        <translation>Combien de temps la trace est gardée</translation>
    </message>
    <message>
        <source>&amp;Make Message</source>
        <translation>En faire un me&amp;ssage</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Enregistre&amp;r en CSV…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>%1 émis</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trouvés</translation>
    </message>
    <message>
        <source>The newest %1 found</source>
        <translation>Les %1 plus récents trouvés</translation>
    </message>
    <message>
        <source>Sends the text of the chosen line, as if it were typed</source>
        <translation>Émet le texte de la ligne choisie, comme s’il était saisi</translation>
    </message>
    <message>
        <source>No keyer is connected</source>
        <translation>Aucun manipulateur n’est connecté</translation>
    </message>
    <message>
        <source>Puts the text of the chosen line under a message key</source>
        <translation>Met le texte de la ligne choisie sous une touche de message</translation>
    </message>
    <message>
        <source>F&amp;%1  %2</source>
        <translation>F&amp;%1  %2</translation>
    </message>
    <message>
        <source>Replace the text of F%1?</source>
        <translation>Remplacer le texte de F%1&#xa0;?</translation>
    </message>
    <message>
        <source>It is “%1” now, and will be “%2”.</source>
        <translation>C’est «&#xa0;%1&#xa0;» maintenant, ce sera «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Enregistrer en CSV</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Valeurs séparées par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>sent.csv</source>
        <translation>emis.csv</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Pas enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Émettre de nouveau</translation>
    </message>
    <message>
        <source>Saved as %1, without %2 that could not be read</source>
        <translation>Enregistré sous %1, sans %2 qui n’ont pas pu être lus</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Off</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Iambic B</source>
        <translation>Iambic B</translation>
    </message>
    <message>
        <source>Iambic A</source>
        <translation>Iambic A</translation>
    </message>
    <message>
        <source>Ultimatic</source>
        <translation>Ultimatic</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Traits</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Échange</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Accusé</translation>
    </message>
    <message>
        <source>My Call</source>
        <translation>Mon indicatif</translation>
    </message>
    <message>
        <source>Their Call</source>
        <translation>Votre indicatif</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Répétez</translation>
    </message>
    <message>
        <source>%1 lpm</source>
        <translation>%1 lpm</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mois</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 mois</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 an</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 ans</translation>
    </message>
</context>
<context>
    <name>SettingBinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFileAlert</name>
    <message>
        <source>You may not read %1. It was left as it is, and what you choose now is stored in %2.</source>
        <translation>Vous n’avez pas le droit de lire %1. Le fichier est resté tel quel, et ce que vous choisissez maintenant est enregistré dans %2.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Your settings could not be read.</source>
        <translation>Vos réglages n’ont pas pu être lus.</translation>
    </message>
    <message>
        <source>Your settings cannot be stored.</source>
        <translation>Vos réglages ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>A quotation mark in %1 is not closed.</source>
        <translation>Un guillemet de %1 n’est pas fermé.</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device.</source>
        <translation>%1 est un tube ou un périphérique.</translation>
    </message>
    <message>
        <source>%1 is much too large to be settings.</source>
        <translation>%1 est beaucoup trop grand pour des réglages.</translation>
    </message>
    <message>
        <source>There is something in %1 that is no setting.</source>
        <translation>Il y a dans %1 quelque chose qui n’est pas un réglage.</translation>
    </message>
    <message>
        <source>The file could not be put aside. It was left as it is, and what you choose now is stored in %1.</source>
        <translation>Le fichier n’a pas pu être mis de côté. Il est resté tel quel, et ce que vous choisissez maintenant est enregistré dans %1.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. The lines that could be read are in use.</source>
        <translation>Rien n’en est perdu&#xa0;: c’est maintenant %1. Les lignes lisibles sont utilisées.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Quorvel starts with the settings of a new installation.</source>
        <translation>Rien n’en est perdu&#xa0;: c’est maintenant %1. Quorvel démarre avec les réglages d’une nouvelle installation.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. What is not stored holds until you quit, and is lost then unless it can be stored before: %3.</source>
        <translation>%1 ne peut pas être écrit&#xa0;: %2. Ce qui n’est pas enregistré vaut jusqu’à ce que vous quittiez, et sera perdu alors, sauf si l’enregistrement réussit avant&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Of what cannot be read, the last settings hold, and have been stored anew.</source>
        <translation>Rien n’en est perdu&#xa0;: c’est maintenant %1. Pour ce qui est illisible, les derniers réglages valent, et ont été enregistrés de nouveau.</translation>
    </message>
    <message>
        <source>Your settings were damaged by another program.</source>
        <translation>Vos réglages ont été abîmés par un autre programme.</translation>
    </message>
    <message>
        <source>%1 … (%2 in all)</source>
        <translation>%1 … (%2 en tout)</translation>
    </message>
</context>
<context>
    <name>SleepNotice</name>
    <message>
        <source>The computer went to sleep, which stopped the sending.</source>
        <translation>L’ordinateur s’est mis en veille, ce qui a arrêté l’émission.</translation>
    </message>
    <message>
        <source>What you entered meanwhile waits: take Pause off to send it, or press Esc to drop it.</source>
        <translation>Ce que vous avez entré entre-temps attend&#xa0;: arrêtez Pause pour l’émettre, ou pressez Échap pour l’abandonner.</translation>
    </message>
</context>
<context>
    <name>SpeedLabel</name>
    <message>
        <source>%1 LPM</source>
        <translation>%1 LPM</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>– WPM</source>
        <translation>– WPM</translation>
    </message>
    <message>
        <source>set here</source>
        <translation>réglée ici</translation>
    </message>
    <message>
        <source>knob</source>
        <translation>bouton</translation>
    </message>
    <message>
        <source>%1, set here</source>
        <translation>%1, réglée ici</translation>
    </message>
</context>
<context>
    <name>SpokenChanges</name>
    <message>
        <source>%1: on</source>
        <translation>%1 : activé</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1 : désactivé</translation>
    </message>
    <message>
        <source>Break-in: what waited was dropped</source>
        <translation>Break-in : ce qui attendait a été abandonné</translation>
    </message>
</context>
<context>
    <name>StandaloneMessages</name>
    <message>
        <source>Message &amp;1</source>
        <translation>Message &amp;1</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 1. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 1. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 1</source>
        <translation>Émettre 1</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Message &amp;2</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 2. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 2. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 2</source>
        <translation>Émettre 2</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Message &amp;3</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 3. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 3. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 3</source>
        <translation>Émettre 3</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Message &amp;4</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 4. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 4. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 4</source>
        <translation>Émettre 4</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Message &amp;5</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 5. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 5. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 5</source>
        <translation>Émettre 5</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Message &amp;6</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 6. Tokens are not filled in.</source>
        <translation>Ce que le manipulateur émet de sa propre mémoire comme message 6. Les symboles n’y sont pas remplacés.</translation>
    </message>
    <message>
        <source>Send 6</source>
        <translation>Émettre 6</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory</source>
        <translation>Chargement de la mémoire du manipulateur</translation>
    </message>
    <message>
        <source>The serial line takes two and a half seconds for the whole memory.</source>
        <translation>La ligne série met deux secondes et demie pour toute la mémoire.</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory: %p%</source>
        <translation>Chargement de la mémoire du manipulateur&#xa0;: %p%</translation>
    </message>
    <message>
        <source>Sa&amp;ve to keyer</source>
        <translation>Éc&amp;rire dans le manipulateur</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Cannot hold %1</source>
        <translation>Ne peut contenir %1</translation>
    </message>
    <message>
        <source>Does not fit</source>
        <translation>N’y tient pas</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Finit à %1</translation>
    </message>
    <message>
        <source>No Morse for %1</source>
        <translation>Pas de morse pour %1</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory has no place for %1. Nothing can be saved while it is in this message.</source>
        <translation>La mémoire du manipulateur n’a pas de place pour %1. Rien ne peut être enregistré tant qu’il est dans ce message.</translation>
    </message>
    <message>
        <source>The memory has no room for this message, which is left out when you save. Characters too many: %1.</source>
        <translation>La mémoire n’a pas de place pour ce message, qui sera écarté à l’enregistrement. Caractères en trop&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The keyer takes %1 for the end of the message: it sends nothing behind it, and the sign itself is cut short.</source>
        <translation>Le manipulateur prend %1 pour la fin du message&#xa0;: il n’émet rien après, et le signe lui-même est écourté.</translation>
    </message>
    <message>
        <source>%1 has no Morse code: the keyer sends nothing in its place. Tokens are not filled in here.</source>
        <translation>%1 n’a pas de code morse&#xa0;: le manipulateur n’émet rien à sa place. Les symboles ne sont pas remplacés ici.</translation>
    </message>
    <message>
        <source>Message %1 holds %2, which has no Morse code. Take it out and save again.</source>
        <translation>Le message %1 contient %2, qui n’a pas de code morse. Retirez-le et enregistrez de nouveau.</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Message %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Connect the keyer to save and to send.</source>
        <translation>Connectez le manipulateur pour enregistrer et pour émettre.</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded.</source>
        <translation>La mémoire du manipulateur est en cours de chargement.</translation>
    </message>
    <message>
        <source>Writes these messages and all settings into the keyer&apos;s own memory, for work without a computer. It takes two and a half seconds.</source>
        <translation>Écrit ces messages et tous les réglages dans la mémoire du manipulateur, pour travailler sans ordinateur. Cela prend deux secondes et demie.</translation>
    </message>
    <message>
        <source>Has the keyer send this message as it was last saved.</source>
        <translation>Fait émettre ce message au manipulateur, tel qu’il a été enregistré en dernier.</translation>
    </message>
</context>
<context>
    <name>TuneSwitch</name>
    <message>
        <source>Tune needs a keyer, and none is connected</source>
        <translation>L’accord demande un manipulateur, et aucun n’est connecté</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded</source>
        <translation>La mémoire du manipulateur est en cours de chargement</translation>
    </message>
</context>
<context>
    <name>TuneWarning</name>
    <message>
        <source>%1 s, lets go in %2 s</source>
        <translation>%1 s, relâche dans %2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Tune is off</source>
        <translation>L’accord est arrêté</translation>
    </message>
</context>
<context>
    <name>TypingWatch</name>
    <message>
        <source>%1 – takes keys when you have stopped typing</source>
        <translation>%1 – accepte les touches quand vous ne tapez plus</translation>
    </message>
</context>
<context>
    <name>VirtualKeyer</name>
    <message>
        <source>the system has no watches left; openings of the port are noticed late</source>
        <translation>le système n’a plus de surveillances&#xa0;; l’ouverture du port est remarquée tard</translation>
    </message>
    <message>
        <source>Plugged in as %1 (%2)</source>
        <translation>Branché sous le nom %1 (%2)</translation>
    </message>
    <message>
        <source>a running virtual keyer already holds the name %1</source>
        <translation>un manipulateur virtuel en marche porte déjà le nom %1</translation>
    </message>
    <message>
        <source>the directory %1 belongs to another user</source>
        <translation>le répertoire %1 appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>%1 is in the way and no virtual keyer made it</source>
        <translation>%1 gêne, et aucun manipulateur virtuel ne l’a fait</translation>
    </message>
    <message>
        <source>cannot write the registers %1: %2</source>
        <translation>impossible d’écrire les registres %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot write the transcript %1</source>
        <translation>impossible d’écrire la transcription %1</translation>
    </message>
    <message>
        <source>a running virtual keyer (process %1) already holds the name %2</source>
        <translation>un manipulateur virtuel en marche (processus %1) porte déjà le nom %2</translation>
    </message>
    <message>
        <source>The virtual keyer does not run: %1</source>
        <translation>Le manipulateur virtuel ne tourne pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot read the script %1: %2</source>
        <translation>impossible de lire le script %1 : %2</translation>
    </message>
    <message>
        <source>a profile that --help lists</source>
        <translation>un profil que --help énumère</translation>
    </message>
    <message>
        <source>%1:%2: &quot;%3&quot; is not understood; possible is: %4</source>
        <translation>%1:%2 : « %3 » n’est pas compris ; possible : %4</translation>
    </message>
    <message>
        <source>%1:%2: expected %3, but it is %4</source>
        <translation>%1:%2 : %3 était attendu, mais c’est %4</translation>
    </message>
    <message>
        <source>%1:%2: not done before the end</source>
        <translation>%1:%2 : pas exécuté avant la fin</translation>
    </message>
    <message>
        <source>No window can be shown. What is keyed is printed here, until Ctrl+C.</source>
        <translation>Aucune fenêtre ne peut être affichée. Ce qui est manipulé s’imprime ici, jusqu’à Ctrl+C.</translation>
    </message>
    <message>
        <source>cannot write the sound %1</source>
        <translation>impossible d’écrire le son %1</translation>
    </message>
</context>
<context>
    <name>VirtualKeyerCommandLine</name>
    <message>
        <source>The kind of keyer, or several of them, separated by commas:</source>
        <translation>Le genre de manipulateur, ou plusieurs, séparés par des virgules&#xa0;:</translation>
    </message>
    <message>
        <source>Writes a line for every event, with its time in ms, to %1.</source>
        <translation>Écrit une ligne par événement, avec son temps en ms, dans %1.</translation>
    </message>
    <message>
        <source>Keeps %1 up to date with the keyer&apos;s registers, and the settings and messages of its memory: lines of a name and a value. Each change replaces the file as a whole.</source>
        <translation>Tient %1 à jour avec les registres du manipulateur, et les réglages et messages de sa mémoire&#xa0;: des lignes d’un nom et d’une valeur. Chaque changement remplace le fichier entier.</translation>
    </message>
    <message>
        <source>Where the speed pot stands, %1 to %2 words per minute, %3 by default. It counts within the range that the host has set, 10 to 25 at power-up.</source>
        <translation>Position du potentiomètre de vitesse, de %1 à %2 mots par minute, %3 par défaut. Elle compte dans la plage que l’hôte a réglée, 10 à 25 à la mise sous tension.</translation>
    </message>
    <message>
        <source>The serial port&apos;s name, %1 by default. The port is a link in quorvel/ports in the runtime directory.</source>
        <translation>Le nom du port série, %1 par défaut. Le port est un lien dans quorvel/ports du répertoire d’exécution.</translation>
    </message>
    <message>
        <source>Unknown profile &apos;%1&apos;; --help lists them.</source>
        <translation>Profil &apos;%1&apos; inconnu&#xa0;; --help les énumère.</translation>
    </message>
    <message>
        <source>The speed is %1 to %2 words per minute, not &apos;%3&apos;.</source>
        <translation>La vitesse est de %1 à %2 mots par minute, pas &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a serial port: a name has 1 to 200 characters, no slash, and does not begin with a dot.</source>
        <translation>&apos;%1&apos; ne peut pas nommer un port série&#xa0;: un nom a 1 à 200 caractères, pas de barre oblique, et ne commence pas par un point.</translation>
    </message>
    <message>
        <source>The transcript needs a file name.</source>
        <translation>La transcription demande un nom de fichier.</translation>
    </message>
    <message>
        <source>The registers need a file name.</source>
        <translation>Les registres demandent un nom de fichier.</translation>
    </message>
    <message>
        <source>A Morse keyer made of software: it plugs itself in as a serial port, obeys the host
program that opens it, and prints what it keys to standard output.</source>
        <translation>Un manipulateur morse logiciel&#xa0;: il se branche lui-même comme port série, obéit au programme hôte
qui l’ouvre, et écrit ce qu’il manipule sur la sortie standard.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Affiche ce texte.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument &apos;%1&apos; inattendu.</translation>
    </message>
    <message>
        <source>Standard input works the paddle: &quot;.&quot; and &quot;-&quot; each close a contact, and anything else opens both.</source>
        <translation>L’entrée standard manœuvre les palettes : « . » et « - » ferment chacun un contact, tout le reste ouvre les deux.</translation>
    </message>
    <message>
        <source>Shows no window.</source>
        <translation>N’affiche pas de fenêtre.</translation>
    </message>
    <message>
        <source>Saves the sidetone to %1, a WAV file.</source>
        <translation>Enregistre l’effet local dans %1, un fichier WAV.</translation>
    </message>
    <message>
        <source>Works the keyer as %1 says, &quot;-&quot; for standard input, and ends with it; the exit status is 3 if what it expects did not happen. Lines of it are: %2</source>
        <translation>Manœuvre le manipulateur comme le dit %1, « - » pour l’entrée standard, et finit avec lui ; le code de fin est 3 si ce qu’il attend ne s’est pas produit. Ses lignes sont : %2</translation>
    </message>
    <message>
        <source>The script&apos;s time passes as fast as it can, and no port is plugged in.</source>
        <translation>Le temps du script passe aussi vite que possible, et aucun port n’est branché.</translation>
    </message>
    <message>
        <source>The script needs a file name.</source>
        <translation>Le script a besoin d’un nom de fichier.</translation>
    </message>
    <message>
        <source>Only a script can be fast.</source>
        <translation>Seul un script peut être rapide.</translation>
    </message>
    <message>
        <source>Standard input is either the script or the paddle.</source>
        <translation>L’entrée standard est soit le script, soit les palettes.</translation>
    </message>
    <message>
        <source>The sound needs a file name.</source>
        <translation>Le son a besoin d’un nom de fichier.</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>PART</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>SECONDES</translation>
    </message>
    <message>
        <source>What is wrong with the line, or several such things, separated by commas; a number may be left out:</source>
        <translation>Ce qui ne va pas sur la ligne, une ou plusieurs choses, séparées par des virgules&#xa0;; un nombre peut être omis&#xa0;:</translation>
    </message>
    <message>
        <source>Has chance do the same to the line as it did with this number, 1 by default.</source>
        <translation>Fait que le hasard fasse à la ligne la même chose qu’avec ce nombre, 1 par défaut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no trouble; --help lists them.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un trouble de la ligne&#xa0;; --help les énumère.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no seed: a whole number, not below 0.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une graine&#xa0;: un nombre entier, pas au-dessous de 0.</translation>
    </message>
</context>
<context>
    <name>WaitingLabel</name>
    <message>
        <source>%1 waiting</source>
        <translation>%1 en attente</translation>
    </message>
</context>
<context>
    <name>WinKeyerUsb</name>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Giving up and closing connection to keyer.</source>
        <translation>Abandon et fermeture de la connexion au manipulateur.</translation>
    </message>
    <message>
        <source>See AMSerialErrors.h</source>
        <translation>Voir AMSerialErrors.h</translation>
    </message>
    <message>
        <source>There is no port defined for the WinKeyer.</source>
        <translation>Aucun port n’est défini pour le WinKeyer.</translation>
    </message>
    <message>
        <source>Choose a serial port other than None in the General Preferences pane. Or, plug in a cable to your WinKeyer USB.</source>
        <translation>Choisissez un autre port série que Aucun dans les préférences, sous Général. Ou branchez le câble de votre WinKeyer USB.</translation>
    </message>
    <message>
        <source>The WinKeyer serial port %1 is not available.</source>
        <translation>Le port série %1 du WinKeyer n’est pas disponible.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer is connected to the selected port, and that no other application is using that port. Also confirm that the FDTI driver is installed. Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.</source>
        <translation>Vérifiez que le WinKeyer est connecté au port choisi, et qu’aucune autre application n’utilise ce port. Vérifiez aussi que le pilote FDTI est installé. Le pilote Mac OS X voulu se trouve sur https://ftdichip.com/drivers/.</translation>
    </message>
    <message>
        <source>Unable to open the WinKeyer serial port %1.</source>
        <translation>Impossible d’ouvrir le port série %1 du WinKeyer.</translation>
    </message>
    <message>
        <source>Confirm that the USB-Serial device is connected and active.</source>
        <translation>Vérifiez que l’adaptateur USB-série est connecté et actif.</translation>
    </message>
    <message>
        <source>WinKeyer sync failed with AMSerial code: </source>
        <translation>WinKeyer&#xa0;: synchronisation échouée avec le code AMSerial&#xa0;: </translation>
    </message>
    <message>
        <source>WinKeyer echo test Admin command failed with AMSerial code: </source>
        <translation>WinKeyer&#xa0;: commande Admin de test d’écho échouée avec le code AMSerial&#xa0;: </translation>
    </message>
    <message>
        <source>WinKeyer Host Open Admin command failed.</source>
        <translation>WinKeyer&#xa0;: commande Admin Host Open échouée.</translation>
    </message>
    <message>
        <source>WinKeyer returned unsupported version: %1.</source>
        <translation>Le WinKeyer a renvoyé une version non prise en charge&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer version is between 20 and 23.</source>
        <translation>Vérifiez que la version du WinKeyer est entre 20 et 23.</translation>
    </message>
    <message>
        <source>WinKeyer Set WinKeyer 2 Mode Admin command failed.</source>
        <translation>WinKeyer&#xa0;: commande Admin Set WinKeyer 2 Mode échouée.</translation>
    </message>
    <message>
        <source>WinKeyer Host Close Admin command failed with AMSerial code: </source>
        <translation>WinKeyer&#xa0;: commande Admin Host Close échouée avec le code AMSerial&#xa0;: </translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>space</source>
        <translation>espace</translation>
    </message>
    <message>
        <source>Leave the speed to the knob</source>
        <translation>Laisser la vitesse au bouton</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Key up</source>
        <translation>Manipulateur levé</translation>
    </message>
    <message>
        <source>In the buffer: PTT off</source>
        <translation>Dans le tampon : PTT désactivé</translation>
    </message>
    <message>
        <source>No Farnsworth</source>
        <translation>Pas de Farnsworth</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>point</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>trait</translation>
    </message>
    <message>
        <source>both</source>
        <translation>les deux</translation>
    </message>
    <message>
        <source>Buffer: overwrite at %1</source>
        <translation>Tampon : écraser à partir de %1</translation>
    </message>
    <message>
        <source>Buffer: append at %1</source>
        <translation>Tampon : ajouter à partir de %1</translation>
    </message>
    <message>
        <source>Buffer: insert %1 nulls</source>
        <translation>Tampon : insérer %1 octets nuls</translation>
    </message>
    <message>
        <source>Buffer: move %1, unknown</source>
        <translation>Tampon : déplacement %1, inconnu</translation>
    </message>
    <message>
        <source>In the buffer: high speed, %1 WPM</source>
        <translation>Dans le tampon : grande vitesse, %1 WPM</translation>
    </message>
    <message>
        <source>Set the tone: %1</source>
        <translation>Régler le son : %1</translation>
    </message>
    <message>
        <source>Set speed %1 WPM</source>
        <translation>Régler la vitesse : %1 WPM</translation>
    </message>
    <message>
        <source>Set weighting %1 %</source>
        <translation>Régler la pondération : %1 %</translation>
    </message>
    <message>
        <source>Set PTT lead/tail %1, %2 ms</source>
        <translation>Régler l’avance/le maintien PTT : %1, %2 ms</translation>
    </message>
    <message>
        <source>Set the knob&apos;s range %1 to %2 WPM</source>
        <translation>Régler la plage du bouton : %1 à %2 WPM</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Ask for the knob</source>
        <translation>Demander le bouton</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Set the pins: %1</source>
        <translation>Régler les broches : %1</translation>
    </message>
    <message>
        <source>Clear buffer</source>
        <translation>Vider le tampon</translation>
    </message>
    <message>
        <source>Key down</source>
        <translation>Manipulateur baissé</translation>
    </message>
    <message>
        <source>Set high speed %1 WPM</source>
        <translation>Régler la grande vitesse : %1 WPM</translation>
    </message>
    <message>
        <source>Set Farnsworth %1 WPM</source>
        <translation>Régler Farnsworth : %1 WPM</translation>
    </message>
    <message>
        <source>Set the mode: %1</source>
        <translation>Régler le mode : %1</translation>
    </message>
    <message>
        <source>Load defaults: %1</source>
        <translation>Charger les valeurs de base : %1</translation>
    </message>
    <message>
        <source>Set first extension %1 ms</source>
        <translation>Régler l’extension initiale : %1 ms</translation>
    </message>
    <message>
        <source>Set key compensation %1 ms</source>
        <translation>Régler la compensation : %1 ms</translation>
    </message>
    <message>
        <source>Set paddle memory %1 (50: a dit)</source>
        <translation>Régler la mémoire des palettes : %1 (50 : un point)</translation>
    </message>
    <message>
        <source>Null</source>
        <translation>Octet nul</translation>
    </message>
    <message>
        <source>Paddle by the host: %1</source>
        <translation>Palettes par l’hôte : %1</translation>
    </message>
    <message>
        <source>Ask for the status</source>
        <translation>Demander l’état</translation>
    </message>
    <message>
        <source>Buffer: to its beginning</source>
        <translation>Tampon : au début</translation>
    </message>
    <message>
        <source>Set dah to dit %1 (50: 3 to 1)</source>
        <translation>Régler trait sur point : %1 (50 : 3 pour 1)</translation>
    </message>
    <message>
        <source>In the buffer: PTT on</source>
        <translation>Dans le tampon : PTT activé</translation>
    </message>
    <message>
        <source>In the buffer: key down, %1 s</source>
        <translation>Dans le tampon : manipulateur baissé, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: wait, %1 s</source>
        <translation>Dans le tampon : attente, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: merge %1</source>
        <translation>Dans le tampon : fusionner %1</translation>
    </message>
    <message>
        <source>In the buffer: %1 WPM</source>
        <translation>Dans le tampon : %1 WPM</translation>
    </message>
    <message>
        <source>In the buffer: key output %1</source>
        <translation>Dans le tampon : sortie de manipulation %1</translation>
    </message>
    <message>
        <source>In the buffer: the speed that was set</source>
        <translation>Dans le tampon : la vitesse réglée</translation>
    </message>
    <message>
        <source>In the buffer: null</source>
        <translation>Dans le tampon : octet nul</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Étalonner</translation>
    </message>
    <message>
        <source>Reset the keyer</source>
        <translation>Réinitialiser le manipulateur</translation>
    </message>
    <message>
        <source>Open the keyer</source>
        <translation>Ouvrir le manipulateur</translation>
    </message>
    <message>
        <source>Close the keyer</source>
        <translation>Fermer le manipulateur</translation>
    </message>
    <message>
        <source>Echo test %1</source>
        <translation>Test d’écho %1</translation>
    </message>
    <message>
        <source>Ask for the paddle A/D</source>
        <translation>Demander la valeur A/N des palettes</translation>
    </message>
    <message>
        <source>Ask for the speed A/D</source>
        <translation>Demander la valeur A/N de la vitesse</translation>
    </message>
    <message>
        <source>Ask for all values</source>
        <translation>Demander toutes les valeurs</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Débogage</translation>
    </message>
    <message>
        <source>Ask for the calibration</source>
        <translation>Demander l’étalonnage</translation>
    </message>
    <message>
        <source>Version 1 status</source>
        <translation>État de version 1</translation>
    </message>
    <message>
        <source>Version 2 status</source>
        <translation>État de version 2</translation>
    </message>
    <message>
        <source>Ask for the memory</source>
        <translation>Demander la mémoire</translation>
    </message>
    <message>
        <source>Load the memory</source>
        <translation>Charger la mémoire</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Jouer le message %1</translation>
    </message>
    <message>
        <source>Load X1MODE %1</source>
        <translation>Charger X1MODE %1</translation>
    </message>
    <message>
        <source>Line at 9600 baud</source>
        <translation>Ligne à 9600 bauds</translation>
    </message>
    <message>
        <source>Line at 1200 baud</source>
        <translation>Ligne à 1200 bauds</translation>
    </message>
    <message>
        <source>Admin command %1, unknown</source>
        <translation>Commande d’administration %1, inconnue</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>texte %1</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>attente</translation>
    </message>
    <message>
        <source>key down</source>
        <translation>manipulateur baissé</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>break-in</source>
        <translation>break-in</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>status: %1</source>
        <translation>état : %1</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>push-buttons: %1</source>
        <translation>boutons-poussoirs : %1</translation>
    </message>
    <message>
        <source>open, version %1</source>
        <translation>ouvert, version %1</translation>
    </message>
    <message>
        <source>echo test %1</source>
        <translation>test d’écho %1</translation>
    </message>
    <message>
        <source>values: %1</source>
        <translation>valeurs : %1</translation>
    </message>
    <message>
        <source>memory, %1 bytes</source>
        <translation>mémoire, %1 octets</translation>
    </message>
    <message>
        <source>answer %1</source>
        <translation>réponse %1</translation>
    </message>
    <message>
        <source>discarded by the keyer</source>
        <translation>rejeté par le manipulateur</translation>
    </message>
    <message>
        <source>lost, the keyer is starting</source>
        <translation>perdu, le manipulateur démarre</translation>
    </message>
    <message>
        <source>unfinished command</source>
        <translation>commande inachevée</translation>
    </message>
    <message>
        <source>the keyer starts anew</source>
        <translation>le manipulateur redémarre</translation>
    </message>
    <message>
        <source>echo %1</source>
        <translation>écho %1</translation>
    </message>
    <message>
        <source>knob: %1 WPM</source>
        <translation>bouton : %1 WPM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quorvel is running already, and does not answer. End it, then start it again.</source>
        <translation>Quorvel tourne déjà et ne répond pas. Arrêtez-le, puis démarrez-le de nouveau.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KeyerWindow</name>
    <message>
        <source>Virtual keyer</source>
        <translation>Manipulateur virtuel</translation>
    </message>
    <message>
        <source>Plugged in as %1</source>
        <translation>Branché sous le nom %1</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Branché</translation>
    </message>
    <message>
        <source>Pulls the adapter and plugs it in again. Without it the keyer has no power, and forgets its host.</source>
        <translation>Débranche l’adaptateur et le rebranche. Sans lui, le manipulateur n’a pas de courant et oublie son hôte.</translation>
    </message>
    <message>
        <source>Speed knob</source>
        <translation>Bouton de vitesse</translation>
    </message>
    <message>
        <source>Counts within the range that the host has set, and only while the host leaves the speed to it.</source>
        <translation>Compte dans la plage que l’hôte a réglée, et seulement tant que l’hôte lui laisse la vitesse.</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Push-buttons</source>
        <translation>Boutons-poussoirs</translation>
    </message>
    <message>
        <source>The host hears of them once it has asked for version 2 status.</source>
        <translation>L’hôte en est informé dès qu’il a demandé l’état de version 2.</translation>
    </message>
    <message>
        <source>Push-button %1</source>
        <translation>Bouton-poussoir %1</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Registres</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Kind of keyer</source>
        <translation>Type de manipulateur</translation>
    </message>
    <message>
        <source>Keyed text</source>
        <translation>Texte manipulé</translation>
    </message>
    <message>
        <source>What is keyed, by the host or the paddle, is read back here from the key line.</source>
        <translation>Ce que manipule l’hôte ou les palettes est relu ici sur la ligne de manipulation.</translation>
    </message>
    <message>
        <source>Record a script</source>
        <translation>Enregistrer un script</translation>
    </message>
    <message>
        <source>Writes down what is done here, for --script to do again: press once more to save it.</source>
        <translation>Note ce qui est fait ici, pour que --script le refasse : appuyer de nouveau pour l’enregistrer.</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>Enregistrer le script</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Effet local</translation>
    </message>
    <message>
        <source>How loud this machine plays what is keyed; the host sets the pitch.</source>
        <translation>Le volume auquel cette machine joue ce qui est manipulé ; l’hôte règle la hauteur.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>No sound device: it is silent.</source>
        <translation>Pas de périphérique audio : il est muet.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Journal de ligne</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Entraînement</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KindList</name>
    <message>
        <source>Kinds of keyer</source>
        <translation>Types de manipulateur</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::Lamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1 : allumé</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1 : éteint</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::LampRow</name>
    <message>
        <source>Key</source>
        <translation>Manipulateur</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Break-in</source>
        <translation>Break-in</translation>
    </message>
    <message>
        <source>XOFF</source>
        <translation>XOFF</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attente</translation>
    </message>
    <message>
        <source>The transmitter would be keyed. Nothing here is on the air.</source>
        <translation>L’émetteur serait manipulé. Rien d’ici ne passe à l’antenne.</translation>
    </message>
    <message>
        <source>The transmitter would be switched on.</source>
        <translation>L’émetteur serait mis en marche.</translation>
    </message>
    <message>
        <source>The host&apos;s text, the paddle or the tune command keys.</source>
        <translation>Le texte de l’hôte, les palettes ou la commande d’accord manipulent.</translation>
    </message>
    <message>
        <source>The paddle has the key, and the host&apos;s text has gone.</source>
        <translation>Les palettes ont la main, et le texte de l’hôte est perdu.</translation>
    </message>
    <message>
        <source>The buffer is nearly full; the host has to wait.</source>
        <translation>Le tampon est presque plein ; l’hôte doit attendre.</translation>
    </message>
    <message>
        <source>A wait or a key-down of the host&apos;s, with a time of its own, or a tune.</source>
        <translation>Une attente ou un appui de l’hôte d’une durée donnée, ou un accord.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::MessageList</name>
    <message>
        <source>Play %1</source>
        <translation>Jouer %1</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Jouer le message %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Message %1 : %2</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PaddlePanel</name>
    <message>
        <source>Paddle</source>
        <translation>Palettes</translation>
    </message>
    <message>
        <source>Dit (F)</source>
        <translation>Point (F)</translation>
    </message>
    <message>
        <source>Dah (J)</source>
        <translation>Trait (J)</translation>
    </message>
    <message>
        <source>Hold a button, or the keys F and J; both at once for a squeeze.</source>
        <translation>Maintenir un bouton, ou les touches F et J ; les deux à la fois pour une pression double.</translation>
    </message>
    <message>
        <source>Dit paddle</source>
        <translation>Palette des points</translation>
    </message>
    <message>
        <source>Dah paddle</source>
        <translation>Palette des traits</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PracticePage</name>
    <message>
        <source>Text to be sent</source>
        <translation>Texte à manipuler</translation>
    </message>
    <message>
        <source>Letters that work the paddle are letters while this has the keyboard; Enter begins, and hands them back.</source>
        <translation>Les lettres qui actionnent les palettes restent des lettres tant que ce champ a le clavier ; Entrée commence et les rend.</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>X for A: X was sent instead of A. No A: A was left out. And X: X was one too many.</source>
        <translation>X pour A : X a été manipulé au lieu de A. Pas de A : A a été omis. Et X : X était de trop.</translation>
    </message>
    <message>
        <source>Lengths in dits</source>
        <translation>Longueurs en points</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Manipulés</translation>
    </message>
    <message>
        <source>Ideal</source>
        <translation>Idéal</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>From half to 1.5 of the ideal</source>
        <translation>De la moitié à 1,5 fois l’idéal</translation>
    </message>
    <message>
        <source>Dit</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Dah</source>
        <translation>Trait</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Letter space</source>
        <translation>Espace entre lettres</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Espace entre mots</translation>
    </message>
    <message>
        <source>Right: %1 of %2</source>
        <translation>Justes : %1 sur %2</translation>
    </message>
    <message>
        <source>space</source>
        <translation>espace</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 pour %2</translation>
    </message>
    <message>
        <source>no %1</source>
        <translation>pas de %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>et %1</translation>
    </message>
    <message>
        <source>Send the text with the paddle.</source>
        <translation>Manipulez le texte avec les palettes.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::RegisterTable</name>
    <message>
        <source>Registers</source>
        <translation>Registres</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopePage</name>
    <message>
        <source>Place in the last ten minutes</source>
        <translation>Place dans les dix dernières minutes</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the scope</source>
        <translation>Mettre l’oscilloscope en pause</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Plus près</translation>
    </message>
    <message>
        <source>Less time, closer</source>
        <translation>Moins de temps, plus près</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>Plus large</translation>
    </message>
    <message>
        <source>More time, wider</source>
        <translation>Plus de temps, plus large</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Image…</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>Enregistrer une image</translation>
    </message>
    <message>
        <source>Table…</source>
        <translation>Tableau…</translation>
    </message>
    <message>
        <source>Save a table of the last ten minutes</source>
        <translation>Enregistrer un tableau des dix dernières minutes</translation>
    </message>
    <message>
        <source>Save a table</source>
        <translation>Enregistrer un tableau</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopeView</name>
    <message>
        <source>Scope of key and PTT</source>
        <translation>Oscilloscope du manipulateur et du PTT</translation>
    </message>
    <message>
        <source>Arrows move the first cursor, with Shift the second, with Ctrl from edge to edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go through the last ten minutes.</source>
        <translation>Les flèches déplacent le premier curseur, avec Maj le second, avec Ctrl d’un front à l’autre. + et - changent l’échelle, la barre d’espace met en pause ; Page précédente, Page suivante, Début et Fin parcourent les dix dernières minutes.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLog</name>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>Keyer</source>
        <translation>Manipulateur</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Said by</source>
        <translation>Dit par</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>En clair</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLogPage</name>
    <message>
        <source>Said by</source>
        <translation>Dit par</translation>
    </message>
    <message>
        <source>Host and keyer</source>
        <translation>Hôte et manipulateur</translation>
    </message>
    <message>
        <source>The host alone</source>
        <translation>L’hôte seul</translation>
    </message>
    <message>
        <source>The keyer alone</source>
        <translation>Le manipulateur seul</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>Filtre du journal</translation>
    </message>
    <message>
        <source>Words or bytes</source>
        <translation>Mots ou octets</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Vider le journal</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>Saves what is shown, with all its bytes.</source>
        <translation>Enregistre ce qui est affiché, avec tous les octets.</translation>
    </message>
    <message>
        <source>Log of the line</source>
        <translation>Journal de la ligne</translation>
    </message>
</context>
</TS>
