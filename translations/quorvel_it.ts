<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quorvel</source>
        <translation>Informazioni su Quorvel</translation>
    </message>
    <message>
        <source>Quorvel %1</source>
        <translation>Quorvel %1</translation>
    </message>
    <message>
        <source>Sends Morse code through a WinKeyer USB keyer.

Free software under the MIT licence, made with Qt %1.</source>
        <translation>Trasmette in codice Morse tramite un keyer WinKeyer USB.

Software libero con licenza MIT, realizzato con Qt %1.</translation>
    </message>
</context>
<context>
    <name>AlertBox</name>
    <message>
        <source>Takes keys when you have stopped typing for a second</source>
        <translation>Accetta tasti quando non si scrive da un secondo</translation>
    </message>
</context>
<context>
    <name>AnswerNotice</name>
    <message>
        <source>Ask again</source>
        <translation>Chiedi di nuovo</translation>
    </message>
    <message>
        <source>The keyer on %1 does not answer. Look at its power, its cable, and whether this is its port.</source>
        <translation>Il keyer su %1 non risponde. Controlla l’alimentazione, il cavo e se questa è la sua porta.</translation>
    </message>
    <message>
        <source>Nothing has come from the keyer on %1 for 10 s, though a character is on its way to it. It may have started anew.</source>
        <translation>Dal keyer su %1 non arriva nulla da 10 s, benché un carattere sia in viaggio verso di lui. Forse si è riavviato.</translation>
    </message>
</context>
<context>
    <name>BoundControl</name>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivo</translation>
    </message>
    <message>
        <source>Reset “%1” to its default, %2</source>
        <translation>Riporta «%1» al valore predefinito, %2</translation>
    </message>
    <message>
        <source>Reset %1 to %2</source>
        <translation>Riporta %1 a %2</translation>
    </message>
    <message>
        <source>stored: %1</source>
        <translation>memorizzato: %1</translation>
    </message>
    <message>
        <source>%1 to %2, default %3</source>
        <translation>da %1 a %2, predefinito %3</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
    <message>
        <source>%1. It stays until it is changed here.</source>
        <translation>%1. Resta così finché non si cambia qui.</translation>
    </message>
</context>
<context>
    <name>BoundNumber</name>
    <message>
        <source>%1 will become %2.</source>
        <translation>%1 diventerà %2.</translation>
    </message>
    <message>
        <source>“%1” is not a number. It stays at %2.</source>
        <translation>«%1» non è un numero. Resta %2.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3. It stays at %4.</source>
        <translation>%1 è fuori dai limiti: da %2 a %3. Resta %4.</translation>
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
        <translation>Utilizzo: quorvel [opzioni]
Trasmette in codice Morse tramite un keyer WinKeyer USB.

Opzioni:
  -h, --help     Mostra questo testo.
  -v, --version  Mostra la versione.
  --check-ports  Dice che cosa ostacola ogni porta seriale.
      --ask-keyer PORT
                 Di seguito: interroga anche il keyer su questa porta.

Valgono anche le opzioni della libreria grafica, come -platform e -style. La guida è sotto Aiuto.
</translation>
    </message>
</context>
<context>
    <name>ConnectionStrip</name>
    <message>
        <source>Not connected: nothing is sent, and what you type now is forgotten when a keyer is connected.</source>
        <translation>Non connesso: nulla viene trasmesso, e ciò che scrivi ora è dimenticato quando si connette un keyer.</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Scegli porta…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Scegli porta</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Controlla porte…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Controlla porte</translation>
    </message>
    <message>
        <source>The computer goes to sleep: nothing is sent now, and what you enter waits until you take Pause off.</source>
        <translation>Il computer va in sospensione: ora nulla viene trasmesso, e ciò che inserisci attende finché non togli la pausa.</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Primi passi</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Scegli porta…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Scegli porta</translation>
    </message>
    <message>
        <source>Your call sign</source>
        <translation>Il tuo nominativo</translation>
    </message>
    <message>
        <source>Sent for each ` in a message</source>
        <translation>Trasmesso per ogni ` in un messaggio</translation>
    </message>
    <message>
        <source>Enter your own call sign.</source>
        <translation>Inserisci il tuo nominativo.</translation>
    </message>
    <message>
        <source>Press F1 to send CQ, or type. Esc stops at once.</source>
        <translation>Premi F1 per trasmettere CQ, o scrivi. Esc ferma subito.</translation>
    </message>
    <message>
        <source>Try without a keyer</source>
        <translation>Prova senza keyer</translation>
    </message>
    <message>
        <source>Starts a keyer made of software, which keys nothing on the air</source>
        <translation>Avvia un keyer fatto di software, che non manipola nulla in aria</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Controlla porte…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Controlla porte</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Close first steps</source>
        <translation>Chiudi i primi passi</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Connesso a %1.</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port.</source>
        <translation>Collega il keyer, e di’ Sì alla sua porta. Se era già collegato, scegli la sua porta.</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Passo %1, fatto</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Passo %1</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port. What you type until then is not sent, and is forgotten.</source>
        <translation>Collega il keyer, e di’ Sì alla sua porta. Se era già collegato, scegli la sua porta. Ciò che scrivi fino ad allora non viene trasmesso, ed è dimenticato.</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>en</source>
        <extracomment>The folder of docs/guide that is in this language; as it is where there is none.</extracomment>
        <translation>it</translation>
    </message>
</context>
<context>
    <name>GuideButton</name>
    <message>
        <source>Guide to these settings</source>
        <translation>Guida a queste impostazioni</translation>
    </message>
    <message>
        <source>Opens the guide where these settings are explained.</source>
        <translation>Apre la guida dove queste impostazioni sono spiegate.</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Quorvel Guide</source>
        <translation>Guida di Quorvel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Searches all chapters (Ctrl+F). Enter goes to the next place.</source>
        <translation>Cerca in tutti i capitoli (Ctrl+F). Invio va al punto seguente.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Punti trovati</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Places found: %1</source>
        <translation>Punti trovati: %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>Punto %1 di %2</translation>
    </message>
    <message>
        <source>The first %1 places</source>
        <translation>I primi %1 punti</translation>
    </message>
</context>
<context>
    <name>KeyGuard</name>
    <message>
        <source>The key guard does not run: should Quorvel crash or hang while tune is on, the key stays down. Install Quorvel again.</source>
        <translation>Il guardiano del tasto non è in funzione: se Quorvel si blocca o si chiude durante l’accordo, il tasto resta giù. Reinstalla Quorvel.</translation>
    </message>
    <message>
        <source>Quorvel did not react for %1 s while tune was on, and the key was let go of.</source>
        <translation>Quorvel non ha reagito per %1 s con l’accordo attivo, e il tasto è stato rilasciato.</translation>
    </message>
</context>
<context>
    <name>KeyboardView</name>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Non connesso: nulla viene trasmesso</translation>
    </message>
    <message>
        <source>Nothing waits to be sent</source>
        <translation>Nulla attende di essere trasmesso</translation>
    </message>
    <message>
        <source>Characters still to be sent: %1</source>
        <translation>Caratteri ancora da trasmettere: %1</translation>
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
        <translation>neutra</translation>
    </message>
    <message>
        <source>as set</source>
        <translation>impostata</translation>
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
        <translation>Punto %1, linea %2, pausa %3, spazio tra lettere %4</translation>
    </message>
    <message>
        <source>%1, first element %2 longer</source>
        <translation>%1, primo elemento più lungo di %2</translation>
    </message>
    <message>
        <source>&amp;Picture at</source>
        <translation>&amp;Immagine a</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Keyed wave of %1</source>
        <translation>Onda manipolata di %1</translation>
    </message>
    <message>
        <source>The letters %1 as they are keyed with these settings, in front of plain keying at the same speed. The lines of the grid are one dit apart.</source>
        <translation>Le lettere %1 come sono manipolate con queste impostazioni, davanti alla manipolazione neutra alla stessa velocità. Le linee della griglia distano un punto.</translation>
    </message>
    <message>
        <source>The keyer&apos;s speed pot is at this speed, and the picture follows it.</source>
        <translation>Il potenziometro di velocità del keyer è su questa velocità, e l’immagine lo segue.</translation>
    </message>
    <message>
        <source>The speed that the picture is drawn for. It follows the keyer&apos;s speed pot once the keyer is connected.</source>
        <translation>La velocità per cui è disegnata l’immagine. Segue il potenziometro del keyer quando questo è connesso.</translation>
    </message>
</context>
<context>
    <name>KeyerNotice</name>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
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
        <translation>Il computer è sospeso: %1 è chiusa</translation>
    </message>
    <message>
        <source>Transmitting on %1: tune is on</source>
        <translation>In trasmissione su %1: accordo attivo</translation>
    </message>
    <message>
        <source>Connected to %1, waiting for the keyer&apos;s first byte</source>
        <translation>Connesso a %1, in attesa del primo byte del keyer</translation>
    </message>
    <message>
        <source>Connected to %1: idle</source>
        <translation>Connesso a %1: a riposo</translation>
    </message>
    <message>
        <source>Connected to %1: sending</source>
        <translation>Connesso a %1: trasmette</translation>
    </message>
    <message>
        <source>Connected to %1: break-in (paddle)</source>
        <translation>Connesso a %1: break-in (paddle)</translation>
    </message>
    <message>
        <source>Connected to %1: buffer full</source>
        <translation>Connesso a %1: buffer pieno</translation>
    </message>
    <message>
        <source>Connected to %1: paused</source>
        <translation>Connesso a %1: in pausa</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>in pausa</translation>
    </message>
    <message>
        <source>high-speed CW</source>
        <translation>CW veloce</translation>
    </message>
    <message>
        <source>beacon again in %1 s</source>
        <translation>beacon tra %1 s</translation>
    </message>
    <message>
        <source>beacon on</source>
        <translation>beacon attivo</translation>
    </message>
</context>
<context>
    <name>KeyingRecord</name>
    <message>
        <source>Quorvel ended while it was sending. The rest was not sent, and the key is up.</source>
        <translation>Quorvel è terminato mentre trasmetteva. Il resto non è stato trasmesso, e il tasto è su.</translation>
    </message>
    <message>
        <source>Quorvel ended while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Quorvel è terminato con l’accordo attivo. Il tasto può essere rimasto giù; ora è stato rilasciato.</translation>
    </message>
    <message>
        <source>The keyer was unplugged while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Il keyer è stato scollegato con l’accordo attivo. Il tasto può essere rimasto giù; ora è stato rilasciato.</translation>
    </message>
</context>
<context>
    <name>LoggerSocket</name>
    <message>
        <source>Loggers: there is no such port</source>
        <translation>Log: quella porta non esiste</translation>
    </message>
    <message>
        <source>Loggers: port %1</source>
        <translation>Log: porta %1</translation>
    </message>
    <message>
        <source>Loggers: port %1 cannot be had: %2</source>
        <translation>Log: la porta %1 non si può avere: %2</translation>
    </message>
    <message>
        <source>Loggers: port %1 is taken by %2</source>
        <translation>Log: la porta %1 è presa da %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from port %2</source>
        <translation>Log: porta %1, ultimo dalla porta %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from %2</source>
        <translation>Log: porta %1, ultimo da %2</translation>
    </message>
</context>
<context>
    <name>MBPreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
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
        <translation>Messaggio 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Messaggio 2</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Messaggio 3</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Messaggio 4</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Messaggio 5</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Messaggio 6</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Messaggio 7</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Messaggio 8</translation>
    </message>
    <message>
        <source>&amp;Their call</source>
        <translation>N&amp;ominativo</translation>
    </message>
    <message>
        <source>Their call</source>
        <translation>Suo nominativo</translation>
    </message>
    <message>
        <source>The other station&apos;s call sign; ~ in a message stands for it</source>
        <translation>Il nominativo dell’altra stazione; ~ lo rappresenta in un messaggio</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Numero</translation>
    </message>
    <message>
        <source>Decrement serial number</source>
        <translation>Diminuisci il progressivo</translation>
    </message>
    <message>
        <source>One less</source>
        <translation>Uno in meno</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero progressivo</translation>
    </message>
    <message>
        <source>The number of this contact; # in a message stands for it</source>
        <translation>Il numero di questo contatto; # lo rappresenta in un messaggio</translation>
    </message>
    <message>
        <source>Increment serial number</source>
        <translation>Aumenta il progressivo</translation>
    </message>
    <message>
        <source>One more</source>
        <translation>Uno in più</translation>
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
        <translation>Smetti subito di trasmettere e dimentica il testo</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Accordo</translation>
    </message>
    <message>
        <source>Key the transmitter steadily</source>
        <translation>Manipola il trasmettitore di continuo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Hold the text back</source>
        <translation>Trattieni il testo</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>CW veloce</translation>
    </message>
    <message>
        <source>Send at the high speed of the preferences</source>
        <translation>Trasmetti all’alta velocità delle preferenze</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Beacon</translation>
    </message>
    <message>
        <source>Repeat the next message until stopped</source>
        <translation>Ripeti il prossimo messaggio fino allo stop</translation>
    </message>
    <message>
        <source>Keyer status</source>
        <translation>Stato del keyer</translation>
    </message>
    <message>
        <source>What the keyer is doing</source>
        <translation>Che cosa fa il keyer</translation>
    </message>
    <message>
        <source>Characters that are still to be sent</source>
        <translation>Caratteri che restano da trasmettere</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Trasmetti</translation>
    </message>
    <message>
        <source>&amp;Keyer</source>
        <translation>&amp;Keyer</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;Contatto</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferenze…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;High-speed CW</source>
        <translation>CW &amp;veloce</translation>
    </message>
    <message>
        <source>&amp;Their Call</source>
        <translation>&amp;Suo nominativo</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastiera</translation>
    </message>
    <message>
        <source>Ne&amp;xt Contact</source>
        <translation>Contatto s&amp;uccessivo</translation>
    </message>
    <message>
        <source>&amp;Wipe Their Call</source>
        <translation>&amp;Cancella il suo nominativo</translation>
    </message>
    <message>
        <source>&amp;Increment Serial Number</source>
        <translation>&amp;Aumenta il progressivo</translation>
    </message>
    <message>
        <source>&amp;Decrement Serial Number</source>
        <translation>&amp;Diminuisci il progressivo</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>&amp;About Quorvel</source>
        <translation>&amp;Informazioni su Quorvel</translation>
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
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>What is typed here is sent</source>
        <translation>Ciò che si scrive qui viene trasmesso</translation>
    </message>
    <message>
        <source>Tune was let go of after %1 s.</source>
        <translation>L’accordo è stato rilasciato dopo %1 s.</translation>
    </message>
    <message>
        <source>Type here to send</source>
        <translation>Scrivi qui per trasmettere</translation>
    </message>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Non connesso: nulla viene trasmesso</translation>
    </message>
    <message>
        <source>What you send waits for the paddle to be free: Esc drops it</source>
        <translation>Ciò che trasmetti attende che il paddle sia libero: Esc lo scarta</translation>
    </message>
    <message>
        <source>Typing here sends again: End goes to the end</source>
        <translation>Ciò che scrivi qui ritrasmette: Fine va alla fine</translation>
    </message>
    <message>
        <source>. </source>
        <translation>. </translation>
    </message>
    <message>
        <source>TRANSMITTING – Quorvel</source>
        <translation>IN TRASMISSIONE – Quorvel</translation>
    </message>
    <message>
        <source>Whether the speed is the knob&apos;s, or set from the computer</source>
        <translation>Se la velocità è quella della manopola, o impostata dal computer</translation>
    </message>
    <message>
        <source>The speed; a click goes back to that of the keyer&apos;s knob</source>
        <translation>La velocità; un clic torna a quella della manopola del keyer</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Più ve&amp;loce</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Più l&amp;ento</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Un po’ più veloce</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Un po’ più lento</translation>
    </message>
    <message>
        <source>Speed of the &amp;Knob</source>
        <translation>Velocità della &amp;manopola</translation>
    </message>
    <message>
        <source>&amp;Check Ports…</source>
        <translation>&amp;Controlla porte…</translation>
    </message>
    <message>
        <source>&amp;Try Without a Keyer</source>
        <translation>&amp;Prova senza keyer</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Controlla porte…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Controlla porte</translation>
    </message>
    <message>
        <source>&amp;Accept Text from Loggers</source>
        <translation>Accetta &amp;testo dai log</translation>
    </message>
    <message>
        <source>⚠ TRANSMITTING: tune is on. Press Esc to let go.</source>
        <translation>⚠ IN TRASMISSIONE: accordo attivo. Esc lo rilascia.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>W&amp;indow</source>
        <translation>Fin&amp;estra</translation>
    </message>
    <message>
        <source>&amp;Sent</source>
        <translation>&amp;Trasmesso</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>MemoryGauge</name>
    <message>
        <source>Keyer memory</source>
        <translation>Memoria del keyer</translation>
    </message>
    <message>
        <source>How the six messages share the keyer&apos;s memory, a byte a character. One byte always stays free.</source>
        <translation>Come i sei messaggi si dividono la memoria del keyer, un byte per carattere. Un byte resta sempre libero.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes used</source>
        <translation>%1 byte occupati su %2</translation>
    </message>
    <message>
        <source>%1; left out: %2</source>
        <translation>%1; esclusi: %2</translation>
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
        <translation>attende il paddle</translation>
    </message>
</context>
<context>
    <name>MessageButtons</name>
    <message>
        <source>Message %1: %2</source>
        <translation>Messaggio %1: %2</translation>
    </message>
    <message>
        <source>Waits for the paddle: %1</source>
        <translation>Attende il paddle: %1</translation>
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
        <translation>Il CW veloce richiede un keyer, e nessuno è connesso</translation>
    </message>
</context>
<context>
    <name>NamedProfile</name>
    <message>
        <source>a version 2 keyer, firmware 23</source>
        <translation>un keyer di versione 2, firmware 23</translation>
    </message>
    <message>
        <source>echoes after the letter space, &quot;|&quot; too; keys &quot;?&quot; for what has no Morse</source>
        <translation>eco dopo lo spazio tra lettere, anche di &quot;|&quot;; manipola &quot;?&quot; per ciò che non ha codice Morse</translation>
    </message>
    <message>
        <source>never echoes the text, whatever the host has set</source>
        <translation>non rimanda mai l’eco del testo, qualunque cosa l’host abbia impostato</translation>
    </message>
    <message>
        <source>sends a status byte after the version byte</source>
        <translation>invia un byte di stato dopo il byte di versione</translation>
    </message>
    <message>
        <source>sends the last echo and the idle status back to back</source>
        <translation>invia l’ultimo eco e lo stato di riposo uno dopo l’altro</translation>
    </message>
    <message>
        <source>the same, the idle status first</source>
        <translation>lo stesso, lo stato di riposo per primo</translation>
    </message>
    <message>
        <source>asks for a pause at 21 waiting bytes, and again for every more</source>
        <translation>chiede una pausa a 21 byte in attesa, e di nuovo per ognuno in più</translation>
    </message>
    <message>
        <source>drops the key in mid-letter when the buffer is cleared</source>
        <translation>rilascia il tasto a metà lettera quando il buffer è svuotato</translation>
    </message>
    <message>
        <source>restarts when the port is opened and is deaf for 1.3 s</source>
        <translation>si riavvia all’apertura della porta ed è sordo per 1,3 s</translation>
    </message>
    <message>
        <source>beeps for half a second before it obeys its first command</source>
        <translation>emette un bip di mezzo secondo prima di obbedire al primo comando</translation>
    </message>
    <message>
        <source>throws a loaded memory away without a word</source>
        <translation>getta via senza dir nulla una memoria caricata</translation>
    </message>
    <message>
        <source>reports break-in by a single C2 first</source>
        <translation>segnala il break-in prima con un solo C2</translation>
    </message>
    <message>
        <source>is idle for the host until the paddle has keyed for 160 ms</source>
        <translation>è a riposo per l’host finché il paddle non ha manipolato per 160 ms</translation>
    </message>
    <message>
        <source>keys a letter once more that a pause came into</source>
        <translation>manipola un’altra volta la lettera in cui è caduta una pausa</translation>
    </message>
    <message>
        <source>echoes the letter that the paddle cut before the break-in</source>
        <translation>rimanda l’eco della lettera troncata dal paddle prima del break-in</translation>
    </message>
    <message>
        <source>keys what waited when the paddle has rested, unless the host clears it</source>
        <translation>manipola ciò che attendeva quando il paddle è a riposo, se l’host non lo cancella</translation>
    </message>
    <message>
        <source>stays at the last speed when the host gives it back to the knob</source>
        <translation>resta all’ultima velocità quando l’host la restituisce alla manopola</translation>
    </message>
    <message>
        <source>reports the knob to a host, and does not obey it</source>
        <translation>segnala la manopola all’host e non le obbedisce</translation>
    </message>
    <message>
        <source>asks for a pause by C1, without the bit for busy</source>
        <translation>chiede una pausa con C1, senza il bit di occupato</translation>
    </message>
    <message>
        <source>takes a push-button in the midst of text for a break-in</source>
        <translation>prende un pulsante in mezzo al testo per un break-in</translation>
    </message>
    <message>
        <source>ends a tune for the paddle, a letter or a message, without a word</source>
        <translation>termina la sintonia senza dir nulla per il paddle, una lettera o un messaggio</translation>
    </message>
    <message>
        <source>swallows a tune that begins in the midst of text</source>
        <translation>ingoia una sintonia che comincia in mezzo al testo</translation>
    </message>
    <message>
        <source>says and does nothing for 0.44 s behind its version byte</source>
        <translation>non dice e non fa nulla per 0,44 s dopo il suo byte di versione</translation>
    </message>
    <message>
        <source>swallows text for 0.1 s after the buffer was cleared</source>
        <translation>ingoia il testo per 0,1 s dopo che il buffer è stato svuotato</translation>
    </message>
    <message>
        <source>reports press and release of a push-button together, at the release</source>
        <translation>segnala insieme pressione e rilascio di un pulsante, al rilascio</translation>
    </message>
</context>
<context>
    <name>NamedTrouble</name>
    <message>
        <source>bytes that do not arrive</source>
        <translation>byte che non arrivano</translation>
    </message>
    <message>
        <source>bytes that arrive twice</source>
        <translation>byte che arrivano due volte</translation>
    </message>
    <message>
        <source>bytes of which a bit is wrong</source>
        <translation>byte con un bit sbagliato</translation>
    </message>
    <message>
        <source>each byte is up to so much late, by chance</source>
        <translation>ogni byte arriva per caso fino a tanto più tardi</translation>
    </message>
    <message>
        <source>each byte is so much late, as over a network</source>
        <translation>ogni byte arriva di tanto in ritardo, come attraverso una rete</translation>
    </message>
    <message>
        <source>the host gets what has come as often as this, in one read</source>
        <translation>l’host riceve a questo intervallo ciò che è arrivato, in una sola lettura</translation>
    </message>
    <message>
        <source>no character from the keyer arrives</source>
        <translation>non arriva nessun carattere dal keyer</translation>
    </message>
    <message>
        <source>nobody takes what the host sends</source>
        <translation>nessuno prende ciò che l’host invia</translation>
    </message>
    <message>
        <source>the keyer starts anew so long after the port was opened</source>
        <translation>il keyer si riavvia questo tempo dopo l’apertura della porta</translation>
    </message>
    <message>
        <source>the port goes so long after it was opened, and comes back; the keyer keeps its power</source>
        <translation>la porta sparisce questo tempo dopo la sua apertura, e ritorna; il keyer resta alimentato</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close notice</source>
        <translation>Chiudi avviso</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Chiudi questo avviso</translation>
    </message>
</context>
<context>
    <name>PortCheckCommand</name>
    <message>
        <source>%1 is not asked: it is not there, or not free.</source>
        <translation>%1 non viene interrogata: non c’è, o non è libera.</translation>
    </message>
    <message>
        <source>The keyer on %1</source>
        <translation>Il keyer su %1</translation>
    </message>
</context>
<context>
    <name>PortCheckWindow</name>
    <message>
        <source>Check Ports</source>
        <translation>Controlla porte</translation>
    </message>
    <message>
        <source>What is in the way of each port, and what to do about it. Looking opens no port. Commands are for a terminal.</source>
        <translation>Che cosa ostacola ogni porta, e che fare. Guardare non apre alcuna porta. I comandi sono per un terminale.</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Check &amp;again</source>
        <translation>Controlla di &amp;nuovo</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copia il &amp;rapporto</translation>
    </message>
</context>
<context>
    <name>PortEntryView</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Copia il comando</translation>
    </message>
    <message>
        <source>Ask the keyer</source>
        <translation>Interroga il keyer</translation>
    </message>
    <message>
        <source>Opens the port for a moment, and has a keyer send a character back. Nothing is keyed by it; but opening raises the lines DTR and RTS, which key a transmitter that is wired to them.</source>
        <translation>Apre la porta per un momento, e fa rimandare un carattere al keyer. Nulla ne viene manipolato; ma l’apertura alza le linee DTR e RTS, che manipolano un trasmettitore che vi è collegato.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Interrogo…</translation>
    </message>
</context>
<context>
    <name>PortJudge</name>
    <message>
        <source>USB device %1:%2</source>
        <translation>Dispositivo USB %1:%2</translation>
    </message>
    <message>
        <source>You may not open it yet: you are a member of the group %1, but this session began before that.</source>
        <translation>Non puoi ancora aprirla: sei membro del gruppo %1, ma questa sessione è cominciata prima.</translation>
    </message>
    <message>
        <source>Log out, and log in again.</source>
        <translation>Esci dalla sessione, e rientra.</translation>
    </message>
    <message>
        <source>You may not open it: the members of the group %1 may.</source>
        <translation>Non puoi aprirla: i membri del gruppo %1 possono.</translation>
    </message>
    <message>
        <source>Become a member, then log out and log in again:</source>
        <translation>Diventa membro, poi esci dalla sessione e rientra:</translation>
    </message>
    <message>
        <source>You may not open it: root alone may.</source>
        <translation>Non puoi aprirla: solo root può.</translation>
    </message>
    <message>
        <source>See who may:</source>
        <translation>Guarda chi può:</translation>
    </message>
    <message>
        <source>Whoever sits at this machine may as well, but this session is not the one at its screen.</source>
        <translation>Può anche chi siede a questo computer, ma questa sessione non è quella del suo schermo.</translation>
    </message>
    <message>
        <source>With Quorvel&apos;s package installed, whoever sits at the machine may as well: pull the adapter out and plug it in again.</source>
        <translation>Con il pacchetto di Quorvel installato, può anche chi siede al computer: stacca l’adattatore e riattaccalo.</translation>
    </message>
    <message>
        <source>It has just gone.</source>
        <translation>È appena sparita.</translation>
    </message>
    <message>
        <source>Plug it in again, and use another cable or socket if it goes by itself.</source>
        <translation>Ricollegala, e usa un altro cavo o un’altra presa se sparisce da sé.</translation>
    </message>
    <message>
        <source>Another program has it open: %1.</source>
        <translation>Un altro programma l’ha aperta: %1.</translation>
    </message>
    <message>
        <source>End that program. This shows all that have it, those of other users too:</source>
        <translation>Termina quel programma. Questo mostra tutti quelli che l’hanno, anche di altri utenti:</translation>
    </message>
    <message>
        <source>The service for modems, ModemManager, may send its questions to this port when it is plugged in, and a keyer may key them.</source>
        <translation>Il servizio per i modem, ModemManager, può inviare le sue domande a questa porta quando la si collega, e un keyer può manipolarle.</translation>
    </message>
    <message>
        <source>Keep it away with this rule, then plug the adapter in again:</source>
        <translation>Tienilo lontano con questa regola, poi ricollega l’adattatore:</translation>
    </message>
    <message>
        <source>The service for braille displays, brltty, takes this chip for one of them, and may take the port away.</source>
        <translation>Il servizio per i display braille, brltty, prende questo chip per uno di essi, e può portare via la porta.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service:</source>
        <translation>Se qui nessuno legge il braille, rimuovi il servizio:</translation>
    </message>
    <message>
        <source>The adapter gathers what it receives for %1 ms, which could not be lowered: the paddle&apos;s break-in and the echo come late.</source>
        <translation>L’adattatore raccoglie ciò che riceve per %1 ms, che non si sono potuti ridurre: il break-in del paddle e l’eco arrivano tardi.</translation>
    </message>
    <message>
        <source>Lower it until the adapter is plugged in again:</source>
        <translation>Riducili finché l’adattatore non viene ricollegato:</translation>
    </message>
    <message>
        <source>Many a board with this chip starts anew when its port is opened. Quorvel asks such a keyer again after 2 s.</source>
        <translation>Molte schede con questo chip si riavviano quando si apre la loro porta. Quorvel interroga di nuovo un tale keyer dopo 2 s.</translation>
    </message>
    <message>
        <source>A board of this kind leaves its program when a port at 1200 baud is closed, which is a keyer&apos;s speed.</source>
        <translation>Una scheda di questo tipo lascia il suo programma quando si chiude una porta a 1200 baud, che è la velocità di un keyer.</translation>
    </message>
    <message>
        <source>Pull it out and plug it in again after Quorvel has left it.</source>
        <translation>Staccala e riattaccala dopo che Quorvel l’ha lasciata.</translation>
    </message>
    <message>
        <source>It is open, and nothing answers.</source>
        <translation>È aperta, e nulla risponde.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power? A keyer that another program has set to a speed other than 1200 baud keeps it until it has been without power.</source>
        <translation>È la porta del keyer? Il keyer è alimentato? Un keyer che un altro programma ha messo a una velocità diversa da 1200 baud la conserva finché non resta senza alimentazione.</translation>
    </message>
    <message>
        <source>It is open, and the keyer answers.</source>
        <translation>È aperta, e il keyer risponde.</translation>
    </message>
    <message>
        <source>Quorvel has it open.</source>
        <translation>Quorvel l’ha aperta.</translation>
    </message>
    <message>
        <source>Nothing is in the way. Whether a keyer is on it, only asking tells.</source>
        <translation>Nulla la ostacola. Se c’è un keyer, lo dice solo l’interrogazione.</translation>
    </message>
    <message>
        <source>%1, the port chosen last</source>
        <translation>%1, l’ultima porta scelta</translation>
    </message>
    <message>
        <source>It is plugged in, but no driver has taken it.</source>
        <translation>È collegato, ma nessun driver l’ha preso.</translation>
    </message>
    <message>
        <source>Have the kernel load its driver. If there is none, the system may have been updated since it was started: start it anew.</source>
        <translation>Fa’ caricare al kernel il suo driver. Se non ce n’è, forse il sistema è stato aggiornato da quando è stato avviato: riavvialo.</translation>
    </message>
    <message>
        <source>A program has taken it away from its driver: %1.</source>
        <translation>Un programma l’ha tolto al suo driver: %1.</translation>
    </message>
    <message>
        <source>End that program, then plug the adapter in again.</source>
        <translation>Termina quel programma, poi ricollega l’adattatore.</translation>
    </message>
    <message>
        <source>It was taken away from its driver, it seems by the service for braille displays, brltty, which takes the chip for one of them.</source>
        <translation>È stato tolto al suo driver, pare dal servizio per i display braille, brltty, che prende il chip per uno di essi.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service, then plug the adapter in again:</source>
        <translation>Se qui nessuno legge il braille, rimuovi il servizio, poi ricollega l’adattatore:</translation>
    </message>
    <message>
        <source>A program of another user has taken it away from its driver.</source>
        <translation>Un programma di un altro utente l’ha tolto al suo driver.</translation>
    </message>
    <message>
        <source>See which programs use USB devices directly:</source>
        <translation>Guarda quali programmi usano direttamente dispositivi USB:</translation>
    </message>
    <message>
        <source>%1 in USB socket %2</source>
        <translation>%1 nella presa USB %2</translation>
    </message>
    <message>
        <source>The driver %1 has taken it, which makes no port of it.</source>
        <translation>L’ha preso il driver %1, che non ne fa una porta.</translation>
    </message>
    <message>
        <source>Have that driver let go of all its devices, then plug the adapter in again:</source>
        <translation>Fa’ rilasciare a quel driver tutti i suoi dispositivi, poi ricollega l’adattatore:</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Non c’è.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, it has another name now, as after a change of adapter: choose that in File &gt; Preferences…, General.</source>
        <translation>Collega il keyer. Se lo è, ora ha un altro nome, come dopo un cambio di adattatore: sceglilo in File &gt; Preferenze…, Generale.</translation>
    </message>
    <message>
        <source>USB adapters</source>
        <translation>Adattatori USB</translation>
    </message>
    <message>
        <source>No USB serial adapter is there.</source>
        <translation>Non c’è alcun adattatore USB-seriale.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, try another socket and another cable: many a cable charges only. This shows what is plugged in:</source>
        <translation>Collega il keyer. Se lo è, prova un’altra presa e un altro cavo: molti cavi caricano soltanto. Questo mostra che cosa è collegato:</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>udev does not run: what is plugged in now goes unnoticed, and may be opened by root alone.</source>
        <translation>udev non è in funzione: ciò che si collega ora passa inosservato, e solo root può aprirlo.</translation>
    </message>
    <message>
        <source>Start it:</source>
        <translation>Avvialo:</translation>
    </message>
    <message>
        <source>A keyer answers on it.</source>
        <translation>Vi risponde un keyer.</translation>
    </message>
    <message>
        <source>Something answers on it, but not as a keyer does at 1200 baud.</source>
        <translation>Vi risponde qualcosa, ma non come un keyer a 1200 baud.</translation>
    </message>
    <message>
        <source>It is another device&apos;s port, or the keyer has been set to another speed by another program: take its power away for a moment.</source>
        <translation>È la porta di un altro apparecchio, o un altro programma ha messo il keyer a un’altra velocità: togligli l’alimentazione per un momento.</translation>
    </message>
    <message>
        <source>Nothing answers on it.</source>
        <translation>Nulla vi risponde.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power?</source>
        <translation>È la porta del keyer? Il keyer è alimentato?</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>Non si è potuta aprire.</translation>
    </message>
    <message>
        <source>Check the ports again.</source>
        <translation>Controlla di nuovo le porte.</translation>
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
        <translation>Nota</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralPane</name>
    <message>
        <source>My &amp;call</source>
        <translation>Mio &amp;nominativo</translation>
    </message>
    <message>
        <source>My call</source>
        <translation>Mio nominativo</translation>
    </message>
    <message>
        <source>Your own call sign: letters, digits and the slash. It is sent for each ` in a message.</source>
        <translation>Il tuo nominativo: lettere, cifre e la barra. È trasmesso per ogni ` in un messaggio.</translation>
    </message>
    <message>
        <source>&amp;Serial port</source>
        <translation>&amp;Porta seriale</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta seriale</translation>
    </message>
    <message>
        <source>Where the keyer is plugged in. Choosing a port connects at once, also the same one again; leaving the old one takes two seconds.</source>
        <translation>Dove è collegato il keyer. Scegliere una porta connette subito, anche di nuovo la stessa; lasciare la precedente richiede due secondi.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (non presente)</translation>
    </message>
    <message>
        <source>Tune: &amp;let go after</source>
        <translation>Accordo: ri&amp;lascia dopo</translation>
    </message>
    <message>
        <source>Tune: let go after</source>
        <translation>Accordo: rilascia dopo</translation>
    </message>
    <message>
        <source>How long Tune may key the transmitter down before it lets go by itself. The strip in the main window counts the seconds.</source>
        <translation>Per quanto tempo Accordo può manipolare il trasmettitore prima di rilasciarlo da sé. La striscia nella finestra principale conta i secondi.</translation>
    </message>
    <message>
        <source>Accept text from loggers</source>
        <translation>Accetta testo dai log</translation>
    </message>
    <message>
        <source>Whether logging programs of this machine may send through Quorvel. You and the paddle come before them.</source>
        <translation>Se i programmi di log di questo computer possono trasmettere tramite Quorvel. Tu e il paddle venite prima.</translation>
    </message>
    <message>
        <source>&amp;Accept text from loggers</source>
        <translation>&amp;Accetta testo dai log</translation>
    </message>
    <message>
        <source>Loggers&apos; &amp;port</source>
        <translation>Porta &amp;dei log</translation>
    </message>
    <message>
        <source>Loggers&apos; port</source>
        <translation>Porta dei log</translation>
    </message>
    <message>
        <source>The UDP port of this machine on which loggers are heard. Nearly all of them send to 6789.</source>
        <translation>La porta UDP di questo computer su cui si ascoltano i programmi di log. Quasi tutti inviano a 6789.</translation>
    </message>
    <message>
        <source>Characters a&amp;head</source>
        <translation>&amp;Caratteri in anticipo</translation>
    </message>
    <message>
        <source>Characters ahead</source>
        <translation>Caratteri in anticipo</translation>
    </message>
    <message>
        <source>How many characters may be with the keyer before it has echoed the first. 1 is right for a keyer at this machine; over a network, more keep the spaces exact.</source>
        <translation>Quanti caratteri può avere il keyer prima di aver rimandato il primo. 1 è giusto per un keyer a questo computer; attraverso una rete, di più mantengono esatti gli spazi.</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralViewController</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Changing the serial port...</source>
        <translation>Cambio della porta seriale...</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>No serial port is present. Plug the keyer in.</source>
        <translation>Non è presente alcuna porta seriale. Collega il keyer.</translation>
    </message>
    <message>
        <source>Connected to %1; the keyer has not answered yet</source>
        <translation>Connesso a %1; il keyer non ha ancora risposto</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connesso a %1</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesPane</name>
    <message>
        <source>Label of the button</source>
        <translation>Etichetta del pulsante</translation>
    </message>
    <message>
        <source>Text to send</source>
        <translation>Testo da trasmettere</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Messaggio &amp;1</translation>
    </message>
    <message>
        <source>Message 1 label</source>
        <translation>Etichetta del messaggio 1</translation>
    </message>
    <message>
        <source>What the message&apos;s button in the main window says.</source>
        <translation>Che cosa dice il pulsante del messaggio nella finestra principale.</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Messaggio 1</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F1.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F1.</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Messaggio &amp;2</translation>
    </message>
    <message>
        <source>Message 2 label</source>
        <translation>Etichetta del messaggio 2</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Messaggio 2</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F2.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F2.</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Messaggio &amp;3</translation>
    </message>
    <message>
        <source>Message 3 label</source>
        <translation>Etichetta del messaggio 3</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Messaggio 3</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F3.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F3.</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Messaggio &amp;4</translation>
    </message>
    <message>
        <source>Message 4 label</source>
        <translation>Etichetta del messaggio 4</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Messaggio 4</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F4.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F4.</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Messaggio &amp;5</translation>
    </message>
    <message>
        <source>Message 5 label</source>
        <translation>Etichetta del messaggio 5</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Messaggio 5</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F5.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F5.</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Messaggio &amp;6</translation>
    </message>
    <message>
        <source>Message 6 label</source>
        <translation>Etichetta del messaggio 6</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Messaggio 6</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F6.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F6.</translation>
    </message>
    <message>
        <source>Message &amp;7</source>
        <translation>Messaggio &amp;7</translation>
    </message>
    <message>
        <source>Message 7 label</source>
        <translation>Etichetta del messaggio 7</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Messaggio 7</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F7.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F7.</translation>
    </message>
    <message>
        <source>Message &amp;8</source>
        <translation>Messaggio &amp;8</translation>
    </message>
    <message>
        <source>Message 8 label</source>
        <translation>Etichetta del messaggio 8</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Messaggio 8</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F8.</source>
        <translation>Che cosa trasmettono il pulsante del messaggio e F8.</translation>
    </message>
    <message>
        <source>&amp;Beacon interval</source>
        <translation>Intervallo del &amp;beacon</translation>
    </message>
    <message>
        <source>Beacon interval</source>
        <translation>Intervallo del beacon</translation>
    </message>
    <message>
        <source>How long the beacon is silent before it sends its message again.</source>
        <translation>Per quanto tempo il beacon tace prima di trasmettere di nuovo il suo messaggio.</translation>
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
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>their call</source>
        <translation>il suo nominativo</translation>
    </message>
    <message>
        <source>their call (%1)</source>
        <translation>il suo nominativo (%1)</translation>
    </message>
    <message>
        <source>In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. Between % and ^ the keyer sends high-speed CW, { joins the next two letters to one sign, and | is half a dit of space.</source>
        <translation>In un testo, ` sta per il tuo nominativo (%1), # per il numero progressivo (%2) e ~ per %3. Tra % e ^ il keyer trasmette CW veloce, { unisce le due lettere seguenti in un solo segno, e | è mezzo punto di spazio.</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerPane</name>
    <message>
        <source>Groups of settings</source>
        <translation>Gruppi di impostazioni</translation>
    </message>
    <message>
        <source>&amp;Keying</source>
        <translation>&amp;Manipolazione</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>&amp;Peso</translation>
    </message>
    <message>
        <source>Above 0 elements grow and the gaps after them shrink, for a heavier sound; below 0 it is lighter.</source>
        <translation>Sopra 0 gli elementi crescono e le pause calano, per un suono più pesante; sotto è più leggero.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Dah/dit &amp;ratio</source>
        <translation>&amp;Rapporto linea/punto</translation>
    </message>
    <message>
        <source>How many dits long a dah is: 3 is the standard, more gives a swing.</source>
        <translation>Quanti punti dura una linea: 3 è la norma, di più dà un ritmo dondolante.</translation>
    </message>
    <message>
        <source> : 1</source>
        <translation> : 1</translation>
    </message>
    <message>
        <source>&amp;Compensation</source>
        <translation>&amp;Compensazione</translation>
    </message>
    <message>
        <source>Added to every element and taken from the gap after it, for a transmitter that clips elements.</source>
        <translation>Aggiunta a ogni elemento e tolta dalla pausa seguente, per un trasmettitore che accorcia gli elementi.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>First &amp;extension</source>
        <translation>Pr&amp;olungamento</translation>
    </message>
    <message>
        <source>Added once to the first element after receiving, for a transmitter that swallows its start.</source>
        <translation>Aggiunto una volta al primo elemento dopo la ricezione, per un trasmettitore che ne mangia l’inizio.</translation>
    </message>
    <message>
        <source>&amp;Farnsworth speed</source>
        <translation>Velocità &amp;Farnsworth</translation>
    </message>
    <message>
        <source>While the speed is below this, letters are keyed at this speed and only the gaps between them are slow.</source>
        <translation>A velocità inferiore, le lettere sono manipolate a questa e solo gli spazi sono lenti.</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Leaves six dits between words in place of seven.</source>
        <translation>Lascia sei punti tra le parole invece di sette.</translation>
    </message>
    <message>
        <source>C&amp;ontest spacing</source>
        <translation>Spaziatura con&amp;test</translation>
    </message>
    <message>
        <source>Padd&amp;le</source>
        <translation>Padd&amp;le</translation>
    </message>
    <message>
        <source>Key &amp;mode</source>
        <translation>M&amp;odo del tasto</translation>
    </message>
    <message>
        <source>A squeeze: iambic B adds an element at its end, A none; ultimatic repeats one; a bug leaves the dahs to you.</source>
        <translation>Con entrambi: iambic B aggiunge un elemento alla fine, A nessuno; ultimatic ne ripete uno; bug lascia a te le linee.</translation>
    </message>
    <message>
        <source>Ultimatic pr&amp;iority</source>
        <translation>Priorità &amp;Ultimatic</translation>
    </message>
    <message>
        <source>Which paddle wins while both are closed: with Normal, the one closed last. Needs the key mode Ultimatic.</source>
        <translation>Quale paddle vince mentre entrambi sono chiusi: con Normale, l’ultimo. Richiede il modo Ultimatic.</translation>
    </message>
    <message>
        <source>Remembers a paddle that is touched while another element is still being keyed.</source>
        <translation>Ricorda un paddle toccato mentre un altro elemento è ancora in manipolazione.</translation>
    </message>
    <message>
        <source>Dit/dah memor&amp;y</source>
        <translation>Memoria &amp;punto/linea</translation>
    </message>
    <message>
        <source>S&amp;witchpoint</source>
        <translation>Punto di s&amp;cambio</translation>
    </message>
    <message>
        <source>Switchpoint</source>
        <translation>Punto di scambio</translation>
    </message>
    <message>
        <source>From when in an element a touch counts for the next. Needs the memory.</source>
        <translation>Da quando, in un elemento, un tocco conta per il successivo. Richiede la memoria.</translation>
    </message>
    <message>
        <source> % of a dit</source>
        <translation> % di un punto</translation>
    </message>
    <message>
        <source>Dits on the right paddle and dahs on the left, as for a left-handed operator.</source>
        <translation>Punti sul paddle destro e linee sul sinistro, come per un operatore mancino.</translation>
    </message>
    <message>
        <source>Swap &amp;paddles</source>
        <translation>Inverti i pa&amp;ddle</translation>
    </message>
    <message>
        <source>A pause of more than a dit between letters on the paddle becomes a full letter space.</source>
        <translation>Una pausa di più di un punto tra le lettere sul paddle diventa uno spazio tra lettere intero.</translation>
    </message>
    <message>
        <source>A&amp;utospace</source>
        <translation>Spazio au&amp;tomatico</translation>
    </message>
    <message>
        <source>The watchdog ends keying after 128 dits or dahs in a row, as from a paddle that is stuck. On here, nothing does.</source>
        <translation>Il watchdog ferma dopo 128 punti o linee di fila, come da un paddle bloccato. Attivo qui, nulla lo fa.</translation>
    </message>
    <message>
        <source>Disable watchdo&amp;g</source>
        <translation>Senza watchdo&amp;g</translation>
    </message>
    <message>
        <source>Echo to the computer</source>
        <translation>Eco verso il computer</translation>
    </message>
    <message>
        <source>The keyer tells the computer what you key on the paddle.</source>
        <translation>Il keyer comunica al computer ciò che manipoli col paddle.</translation>
    </message>
    <message>
        <source>Paddle e&amp;cho-back</source>
        <translation>&amp;Eco del paddle</translation>
    </message>
    <message>
        <source>The keyer reports each character that it has keyed. Off, the gaps between letters grow, and PTT may fall in them.</source>
        <translation>Il keyer comunica ogni carattere manipolato. Disattivo, gli spazi crescono, e il PTT può cadervi.</translation>
    </message>
    <message>
        <source>Serial &amp;echo-back</source>
        <translation>Eco se&amp;riale</translation>
    </message>
    <message>
        <source>Leave serial echo-back on: without it, what the computer sends has longer gaps between its letters.</source>
        <translation>Lascia attivo l’eco seriale: senza, ciò che trasmette il computer ha spazi più lunghi tra le lettere.</translation>
    </message>
    <message>
        <source>&amp;Sidetone and outputs</source>
        <translation>&amp;Sidetone e uscite</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Sidetone</translation>
    </message>
    <message>
        <source>The keyer sounds what it keys.</source>
        <translation>Il keyer fa sentire ciò che manipola.</translation>
    </message>
    <message>
        <source>Sidetone o&amp;n</source>
        <translation>Sidetone a&amp;ttivo</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>&amp;Frequenza</translation>
    </message>
    <message>
        <source>Pitch of the sidetone, for your ears only: it is not heard on the air. Needs the sidetone on.</source>
        <translation>Frequenza del sidetone, solo per le tue orecchie: non si sente in aria. Richiede il sidetone attivo.</translation>
    </message>
    <message>
        <source>Sounds what you key on the paddle, and is silent while the computer sends. Needs the sidetone on.</source>
        <translation>Fa sentire ciò che manipoli col paddle, e tace mentre trasmette il computer. Richiede il sidetone attivo.</translation>
    </message>
    <message>
        <source>&amp;Only for the paddle</source>
        <translation>S&amp;olo paddle</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Uscite del tasto</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 1.</source>
        <translation>Manipola il trasmettitore sull’uscita 1.</translation>
    </message>
    <message>
        <source>Key output &amp;1</source>
        <translation>Uscita &amp;1</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 2.</source>
        <translation>Manipola il trasmettitore sull’uscita 2.</translation>
    </message>
    <message>
        <source>Key output &amp;2</source>
        <translation>Uscita &amp;2</translation>
    </message>
    <message>
        <source>Both are off: no transmitter is keyed.</source>
        <translation>Entrambe disattive: nulla è manipolato.</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Switches the transmitter over before keying and back after it, in place of break-in by the radio itself.</source>
        <translation>Mette il trasmettitore in trasmissione prima di manipolare e lo riporta dopo, al posto del break-in della radio.</translation>
    </message>
    <message>
        <source>PTT &amp;enabled</source>
        <translation>&amp;PTT attivo</translation>
    </message>
    <message>
        <source>Lead-&amp;in</source>
        <translation>Ant&amp;icipo</translation>
    </message>
    <message>
        <source>Wait between switching to transmit and the first element, for relays and amplifiers. Needs PTT enabled.</source>
        <translation>Attesa tra il passaggio in trasmissione e il primo elemento, per relè e amplificatori. Richiede PTT attivo.</translation>
    </message>
    <message>
        <source>&amp;Tail</source>
        <translation>&amp;Ritardo</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after text from the computer, beyond a letter space. Needs PTT enabled.</source>
        <translation>Durata della trasmissione dopo un testo del computer, oltre uno spazio tra lettere. Richiede PTT attivo.</translation>
    </message>
    <message>
        <source>Paddle &amp;hang</source>
        <translation>Te&amp;nuta paddle</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after the paddle: short to hear sooner, long to spare the relay. Needs PTT enabled.</source>
        <translation>Durata della trasmissione dopo il paddle: poca per ascoltare prima, molta per il relè. Richiede PTT attivo.</translation>
    </message>
    <message>
        <source>word spaces</source>
        <translation>sp. parola</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Velocità</translation>
    </message>
    <message>
        <source>Speed pot</source>
        <translation>Potenziometro di velocità</translation>
    </message>
    <message>
        <source>Lo&amp;west speed</source>
        <translation>Velocità mi&amp;nima</translation>
    </message>
    <message>
        <source>Speed with the pot turned fully down.</source>
        <translation>Velocità con il potenziometro al minimo.</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>Inte&amp;rvallo</translation>
    </message>
    <message>
        <source>Speed added with the pot turned fully up. With more than 31 wpm its topmost readings are not shown.</source>
        <translation>Velocità aggiunta con il potenziometro al massimo. Con più di 31 wpm le letture più alte non sono mostrate.</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>CW veloce</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>Ri&amp;tmo</translation>
    </message>
    <message>
        <source>Letters a minute while high-speed CW is on, as for meteor scatter. Holds from when it is next switched on.</source>
        <translation>Lettere al minuto con il CW veloce, come per il meteor scatter. Vale da quando lo si attiva di nuovo.</translation>
    </message>
    <message>
        <source>St&amp;andalone</source>
        <translation>&amp;Autonomo</translation>
    </message>
    <message>
        <source>&amp;Command speed</source>
        <translation>Velocità &amp;comandi</translation>
    </message>
    <message>
        <source>Speed at which the keyer, working alone, answers what you set by paddle. Reaches it with Save to keyer.</source>
        <translation>Velocità con cui il keyer, da solo, risponde a ciò che imposti col paddle. Gli arriva con «Salva nel keyer».</translation>
    </message>
    <message>
        <source>A touch of the paddle breaks off a message that the keyer sends from its memory. Reaches the keyer with Save to keyer.</source>
        <translation>Un tocco del paddle interrompe un messaggio della memoria. Arriva al keyer con «Salva nel keyer».</translation>
    </message>
    <message>
        <source>&amp;Message break</source>
        <translation>Messaggio &amp;interrompibile</translation>
    </message>
    <message>
        <source>Serial numbers that the keyer counts by itself are sent short, as T for 0. Reaches the keyer with Save to keyer.</source>
        <translation>I progressivi che il keyer conta da sé sono trasmessi abbreviati, come T per 0. Gli arriva con «Salva nel keyer».</translation>
    </message>
    <message>
        <source>C&amp;ut serial numbers</source>
        <translation>N&amp;umeri abbreviati</translation>
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
        <translation>Non è stato possibile scrivere la memoria del keyer.</translation>
    </message>
    <message>
        <source>Check that the keyer is connected.</source>
        <translation>Controlla che il keyer sia connesso.</translation>
    </message>
</context>
<context>
    <name>QuorvelDelegate</name>
    <message>
        <source>The WinKeyer using serial port %1 has been unplugged.</source>
        <translation>Il WinKeyer che usa la porta seriale %1 è stato scollegato.</translation>
    </message>
    <message>
        <source>Plug it back in, or choose another serial port in General preferences.</source>
        <translation>Ricollegalo, oppure scegli un’altra porta seriale nelle preferenze, sotto Generale.</translation>
    </message>
    <message>
        <source>The serial port %1 has been plugged in.</source>
        <translation>La porta seriale %1 è stata collegata.</translation>
    </message>
    <message>
        <source>Try to use this port to communicate with a WinKeyer?</source>
        <translation>Provare a usare questa porta per comunicare con un WinKeyer?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>RegisterWords</name>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivato</translation>
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
        <translation>%1 WPM, dalla manopola</translation>
    </message>
    <message>
        <source>%1; %2 WPM for now</source>
        <translation>%1; %2 WPM per ora</translation>
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
        <translation>linea</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>the last one closed</source>
        <translation>l’ultimo contatto chiuso</translation>
    </message>
    <message>
        <source>%1 Hz, for the paddle only</source>
        <translation>%1 Hz, solo paddle</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 to %2 WPM</source>
        <translation>da %1 a %2 WPM</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 e 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Knob&apos;s range</source>
        <translation>Campo della manopola</translation>
    </message>
    <message>
        <source>Farnsworth</source>
        <translation>Farnsworth</translation>
    </message>
    <message>
        <source>Weighting</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Dah to dit</source>
        <translation>Linea a punto</translation>
    </message>
    <message>
        <source>%1 to 1</source>
        <translation>%1 a 1</translation>
    </message>
    <message>
        <source>Key compensation</source>
        <translation>Compensazione</translation>
    </message>
    <message>
        <source>First extension</source>
        <translation>Prolungamento iniziale</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Spazio tra parole</translation>
    </message>
    <message>
        <source>%1 dits</source>
        <translation>%1 punti</translation>
    </message>
    <message>
        <source>Paddle keying</source>
        <translation>Modo del paddle</translation>
    </message>
    <message>
        <source>Ultimatic priority</source>
        <translation>Priorità ultimatic</translation>
    </message>
    <message>
        <source>Paddle swapped</source>
        <translation>Paddle invertiti</translation>
    </message>
    <message>
        <source>Paddle memory</source>
        <translation>Memoria del paddle</translation>
    </message>
    <message>
        <source>after %1 dit lengths</source>
        <translation>dopo %1 lunghezze di punto</translation>
    </message>
    <message>
        <source>Paddle watchdog</source>
        <translation>Sorveglianza del paddle</translation>
    </message>
    <message>
        <source>Autospace</source>
        <translation>Autospazio</translation>
    </message>
    <message>
        <source>Paddle echo</source>
        <translation>Eco del paddle</translation>
    </message>
    <message>
        <source>Serial echo</source>
        <translation>Eco seriale</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Sidetone</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Uscite di manipolazione</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Lead-in</source>
        <translation>Anticipo</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source>Hang time</source>
        <translation>Tenuta del paddle</translation>
    </message>
    <message>
        <source>word space and %1 dits</source>
        <translation>spazio tra parole e %1 punti</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RunTable</name>
    <message>
        <source>the record is damaged</source>
        <translation>il registro è danneggiato</translation>
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
        <translation>Testo</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Sent by</source>
        <translation>Trasmesso da</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Come è finito</translation>
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
        <translation>Digitato</translation>
    </message>
    <message>
        <source>F%1 %2</source>
        <translation>F%1 %2</translation>
    </message>
    <message>
        <source>Push-button %1 %2</source>
        <translation>Pulsante %1 %2</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Beacon</translation>
    </message>
    <message>
        <source>Logger, port %1</source>
        <translation>Log, porta %1</translation>
    </message>
    <message>
        <source>Logger %1</source>
        <translation>Log %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Trasmesso</translation>
    </message>
    <message>
        <source>Stopped at character %1</source>
        <translation>Fermato al carattere %1</translation>
    </message>
    <message>
        <source>Broken in on at character %1</source>
        <translation>Interrotto al carattere %1</translation>
    </message>
    <message>
        <source>Link lost at character %1</source>
        <translation>Collegamento perso al carattere %1</translation>
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
        <translation>punto %1</translation>
    </message>
    <message>
        <source>dah %1</source>
        <translation>linea %1</translation>
    </message>
    <message>
        <source>space %1</source>
        <translation>spazio %1</translation>
    </message>
    <message>
        <source>letter space %1</source>
        <translation>spazio tra lettere %1</translation>
    </message>
    <message>
        <source>word space %1</source>
        <translation>spazio tra parole %1</translation>
    </message>
    <message>
        <source>pause %1</source>
        <translation>pausa %1</translation>
    </message>
    <message>
        <source>elements and spaces: %1</source>
        <translation>elementi e spazi: %1</translation>
    </message>
    <message>
        <source>Click and drag to measure, or use the arrow keys.</source>
        <translation>Per misurare: fare clic e trascinare, o le frecce.</translation>
    </message>
    <message>
        <source>One cursor is set.</source>
        <translation>Un cursore è posto.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 ms: %2</source>
        <translation>%1 ms: %2</translation>
    </message>
</context>
<context>
    <name>SentRecord</name>
    <message>
        <source>What you send cannot be recorded in %1: %2.</source>
        <translation>Quello che trasmette non si può registrare in %1: %2.</translation>
    </message>
    <message>
        <source>The record of what was sent was damaged. It is kept as %1, and a new one has been begun.</source>
        <translation>Il registro di quanto trasmesso era danneggiato. È conservato come %1, e ne è stato iniziato uno nuovo.</translation>
    </message>
</context>
<context>
    <name>SentWindow</name>
    <message>
        <source>Sent</source>
        <translation>Trasmesso</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>C&amp;erca:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Words, a call sign, a key, a logger or a date</source>
        <translation>Parole, un nominativo, un tasto, un log o una data</translation>
    </message>
    <message>
        <source>&amp;Keep a record of what is sent, for</source>
        <translation>Conserva &amp;quanto trasmesso, per</translation>
    </message>
    <message>
        <source>How long what is sent is kept</source>
        <translation>Per quanto tempo si conserva quanto trasmesso</translation>
    </message>
    <message>
        <source>&amp;Make Message</source>
        <translation>Fanne un &amp;messaggio</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>&amp;Salva come CSV…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>%1 trasmessi</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trovati</translation>
    </message>
    <message>
        <source>The newest %1 found</source>
        <translation>I %1 più recenti trovati</translation>
    </message>
    <message>
        <source>Sends the text of the chosen line, as if it were typed</source>
        <translation>Trasmette il testo della riga scelta, come se fosse digitato</translation>
    </message>
    <message>
        <source>No keyer is connected</source>
        <translation>Nessun keyer è collegato</translation>
    </message>
    <message>
        <source>Puts the text of the chosen line under a message key</source>
        <translation>Mette il testo della riga scelta su un tasto messaggio</translation>
    </message>
    <message>
        <source>F&amp;%1  %2</source>
        <translation>F&amp;%1  %2</translation>
    </message>
    <message>
        <source>Replace the text of F%1?</source>
        <translation>Sostituire il testo di F%1?</translation>
    </message>
    <message>
        <source>It is “%1” now, and will be “%2”.</source>
        <translation>Ora è «%1», e sarà «%2».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Salva come CSV</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Valori separati da virgole (*.csv)</translation>
    </message>
    <message>
        <source>sent.csv</source>
        <translation>trasmesso.csv</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Salvato come %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non salvato: %1</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Trasmetti di nuovo</translation>
    </message>
    <message>
        <source>Saved as %1, without %2 that could not be read</source>
        <translation>Salvato come %1, senza %2 che non si sono potuti leggere</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Off</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
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
        <translation>Linee</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punti</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>My Call</source>
        <translation>Mio nominativo</translation>
    </message>
    <message>
        <source>Their Call</source>
        <translation>Suo nominativo</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Ancora</translation>
    </message>
    <message>
        <source>%1 lpm</source>
        <translation>%1 lpm</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mese</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 mesi</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 anno</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 anni</translation>
    </message>
</context>
<context>
    <name>SettingBinder</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFileAlert</name>
    <message>
        <source>You may not read %1. It was left as it is, and what you choose now is stored in %2.</source>
        <translation>Non hai il permesso di leggere %1. Il file è rimasto com’è, e ciò che scegli ora è memorizzato in %2.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Your settings could not be read.</source>
        <translation>Non è stato possibile leggere le impostazioni.</translation>
    </message>
    <message>
        <source>Your settings cannot be stored.</source>
        <translation>Non è possibile memorizzare le impostazioni.</translation>
    </message>
    <message>
        <source>A quotation mark in %1 is not closed.</source>
        <translation>Una virgoletta in %1 non è chiusa.</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device.</source>
        <translation>%1 è una pipe o un dispositivo.</translation>
    </message>
    <message>
        <source>%1 is much too large to be settings.</source>
        <translation>%1 è troppo grande per contenere impostazioni.</translation>
    </message>
    <message>
        <source>There is something in %1 that is no setting.</source>
        <translation>In %1 c’è qualcosa che non è un’impostazione.</translation>
    </message>
    <message>
        <source>The file could not be put aside. It was left as it is, and what you choose now is stored in %1.</source>
        <translation>Non è stato possibile mettere da parte il file. È rimasto com’è, e ciò che scegli ora è memorizzato in %1.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. The lines that could be read are in use.</source>
        <translation>Nulla ne va perso: ora è %1. Le righe leggibili sono in uso.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Quorvel starts with the settings of a new installation.</source>
        <translation>Nulla ne va perso: ora è %1. Quorvel parte con le impostazioni di una nuova installazione.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. What is not stored holds until you quit, and is lost then unless it can be stored before: %3.</source>
        <translation>%1 non può essere scritto: %2. Ciò che non è memorizzato vale finché non esci, e allora è perso, a meno che non si riesca a memorizzarlo prima: %3.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Of what cannot be read, the last settings hold, and have been stored anew.</source>
        <translation>Nulla ne va perso: ora è %1. Di ciò che non si può leggere valgono le ultime impostazioni, che sono state memorizzate di nuovo.</translation>
    </message>
    <message>
        <source>Your settings were damaged by another program.</source>
        <translation>Le impostazioni sono state danneggiate da un altro programma.</translation>
    </message>
    <message>
        <source>%1 … (%2 in all)</source>
        <translation>%1 … (%2 in tutto)</translation>
    </message>
</context>
<context>
    <name>SleepNotice</name>
    <message>
        <source>The computer went to sleep, which stopped the sending.</source>
        <translation>Il computer è andato in sospensione, il che ha fermato la trasmissione.</translation>
    </message>
    <message>
        <source>What you entered meanwhile waits: take Pause off to send it, or press Esc to drop it.</source>
        <translation>Ciò che hai inserito intanto attende: togli la pausa per trasmetterlo, o premi Esc per scartarlo.</translation>
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
        <translation>impostata qui</translation>
    </message>
    <message>
        <source>knob</source>
        <translation>manopola</translation>
    </message>
    <message>
        <source>%1, set here</source>
        <translation>%1, impostata qui</translation>
    </message>
</context>
<context>
    <name>SpokenChanges</name>
    <message>
        <source>%1: on</source>
        <translation>%1: attivo</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: disattivato</translation>
    </message>
    <message>
        <source>Break-in: what waited was dropped</source>
        <translation>Break-in: ciò che attendeva è stato scartato</translation>
    </message>
</context>
<context>
    <name>StandaloneMessages</name>
    <message>
        <source>Message &amp;1</source>
        <translation>Messaggio &amp;1</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 1. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 1. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 1</source>
        <translation>Trasmetti 1</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Messaggio &amp;2</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 2. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 2. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 2</source>
        <translation>Trasmetti 2</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Messaggio &amp;3</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 3. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 3. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 3</source>
        <translation>Trasmetti 3</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Messaggio &amp;4</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 4. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 4. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 4</source>
        <translation>Trasmetti 4</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Messaggio &amp;5</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 5. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 5. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 5</source>
        <translation>Trasmetti 5</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Messaggio &amp;6</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 6. Tokens are not filled in.</source>
        <translation>Ciò che il keyer trasmette dalla propria memoria come messaggio 6. I simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Send 6</source>
        <translation>Trasmetti 6</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory</source>
        <translation>Caricamento della memoria del keyer</translation>
    </message>
    <message>
        <source>The serial line takes two and a half seconds for the whole memory.</source>
        <translation>La linea seriale impiega due secondi e mezzo per l’intera memoria.</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory: %p%</source>
        <translation>Caricamento della memoria del keyer: %p%</translation>
    </message>
    <message>
        <source>Sa&amp;ve to keyer</source>
        <translation>Salva nel &amp;keyer</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Cannot hold %1</source>
        <translation>Non può contenere %1</translation>
    </message>
    <message>
        <source>Does not fit</source>
        <translation>Non ci sta</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Finisce a %1</translation>
    </message>
    <message>
        <source>No Morse for %1</source>
        <translation>Nessun Morse per %1</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory has no place for %1. Nothing can be saved while it is in this message.</source>
        <translation>La memoria del keyer non ha posto per %1. Finché è in questo messaggio non si può salvare nulla.</translation>
    </message>
    <message>
        <source>The memory has no room for this message, which is left out when you save. Characters too many: %1.</source>
        <translation>La memoria non ha spazio per questo messaggio, che al salvataggio è escluso. Caratteri di troppo: %1.</translation>
    </message>
    <message>
        <source>The keyer takes %1 for the end of the message: it sends nothing behind it, and the sign itself is cut short.</source>
        <translation>Il keyer prende %1 per la fine del messaggio: non trasmette nulla dopo, e il segno stesso è troncato.</translation>
    </message>
    <message>
        <source>%1 has no Morse code: the keyer sends nothing in its place. Tokens are not filled in here.</source>
        <translation>%1 non ha codice Morse: il keyer non trasmette nulla al suo posto. Qui i simboli non vengono sostituiti.</translation>
    </message>
    <message>
        <source>Message %1 holds %2, which has no Morse code. Take it out and save again.</source>
        <translation>Il messaggio %1 contiene %2, che non ha codice Morse. Toglilo e salva di nuovo.</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Messaggio %1: %2</translation>
    </message>
    <message>
        <source>Connect the keyer to save and to send.</source>
        <translation>Connetti il keyer per salvare e per trasmettere.</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded.</source>
        <translation>La memoria del keyer è in caricamento.</translation>
    </message>
    <message>
        <source>Writes these messages and all settings into the keyer&apos;s own memory, for work without a computer. It takes two and a half seconds.</source>
        <translation>Scrive questi messaggi e tutte le impostazioni nella memoria del keyer, per lavorare senza computer. Ci vogliono due secondi e mezzo.</translation>
    </message>
    <message>
        <source>Has the keyer send this message as it was last saved.</source>
        <translation>Fa trasmettere al keyer questo messaggio, come è stato salvato l’ultima volta.</translation>
    </message>
</context>
<context>
    <name>TuneSwitch</name>
    <message>
        <source>Tune needs a keyer, and none is connected</source>
        <translation>L’accordo richiede un keyer, e nessuno è connesso</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded</source>
        <translation>La memoria del keyer è in caricamento</translation>
    </message>
</context>
<context>
    <name>TuneWarning</name>
    <message>
        <source>%1 s, lets go in %2 s</source>
        <translation>%1 s, rilascia tra %2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Tune is off</source>
        <translation>L’accordo è disattivato</translation>
    </message>
</context>
<context>
    <name>TypingWatch</name>
    <message>
        <source>%1 – takes keys when you have stopped typing</source>
        <translation>%1 – accetta tasti quando non si scrive più</translation>
    </message>
</context>
<context>
    <name>VirtualKeyer</name>
    <message>
        <source>the system has no watches left; openings of the port are noticed late</source>
        <translation>il sistema non ha più osservatori; l’apertura della porta è notata in ritardo</translation>
    </message>
    <message>
        <source>Plugged in as %1 (%2)</source>
        <translation>Collegato come %1 (%2)</translation>
    </message>
    <message>
        <source>a running virtual keyer already holds the name %1</source>
        <translation>un keyer virtuale in esecuzione ha già il nome %1</translation>
    </message>
    <message>
        <source>the directory %1 belongs to another user</source>
        <translation>la directory %1 appartiene a un altro utente</translation>
    </message>
    <message>
        <source>%1 is in the way and no virtual keyer made it</source>
        <translation>%1 è d’intralcio, e nessun keyer virtuale l’ha creato</translation>
    </message>
    <message>
        <source>cannot write the registers %1: %2</source>
        <translation>impossibile scrivere i registri %1: %2</translation>
    </message>
    <message>
        <source>cannot write the transcript %1</source>
        <translation>impossibile scrivere la trascrizione %1</translation>
    </message>
    <message>
        <source>a running virtual keyer (process %1) already holds the name %2</source>
        <translation>un keyer virtuale in esecuzione (processo %1) ha già il nome %2</translation>
    </message>
    <message>
        <source>The virtual keyer does not run: %1</source>
        <translation>Il keyer virtuale non è in funzione: %1</translation>
    </message>
    <message>
        <source>cannot read the script %1: %2</source>
        <translation>impossibile leggere lo script %1: %2</translation>
    </message>
    <message>
        <source>a profile that --help lists</source>
        <translation>un profilo che --help elenca</translation>
    </message>
    <message>
        <source>%1:%2: &quot;%3&quot; is not understood; possible is: %4</source>
        <translation>%1:%2: «%3» non è comprensibile; è possibile: %4</translation>
    </message>
    <message>
        <source>%1:%2: expected %3, but it is %4</source>
        <translation>%1:%2: si attendeva %3, ma è %4</translation>
    </message>
    <message>
        <source>%1:%2: not done before the end</source>
        <translation>%1:%2: non eseguito prima della fine</translation>
    </message>
    <message>
        <source>No window can be shown. What is keyed is printed here, until Ctrl+C.</source>
        <translation>Non è possibile mostrare alcuna finestra. Ciò che viene manipolato appare qui, fino a Ctrl+C.</translation>
    </message>
    <message>
        <source>cannot write the sound %1</source>
        <translation>impossibile scrivere il suono %1</translation>
    </message>
</context>
<context>
    <name>VirtualKeyerCommandLine</name>
    <message>
        <source>The kind of keyer, or several of them, separated by commas:</source>
        <translation>Il tipo di keyer, o più d’uno, separati da virgole:</translation>
    </message>
    <message>
        <source>Writes a line for every event, with its time in ms, to %1.</source>
        <translation>Scrive una riga per ogni evento, con il suo tempo in ms, in %1.</translation>
    </message>
    <message>
        <source>Keeps %1 up to date with the keyer&apos;s registers, and the settings and messages of its memory: lines of a name and a value. Each change replaces the file as a whole.</source>
        <translation>Tiene %1 aggiornato con i registri del keyer, e con le impostazioni e i messaggi della sua memoria: righe di un nome e un valore. Ogni modifica sostituisce l’intero file.</translation>
    </message>
    <message>
        <source>Where the speed pot stands, %1 to %2 words per minute, %3 by default. It counts within the range that the host has set, 10 to 25 at power-up.</source>
        <translation>Dove sta il potenziometro di velocità, da %1 a %2 parole al minuto, %3 se non indicato. Conta entro l’intervallo che l’host ha impostato, da 10 a 25 all’accensione.</translation>
    </message>
    <message>
        <source>The serial port&apos;s name, %1 by default. The port is a link in quorvel/ports in the runtime directory.</source>
        <translation>Il nome della porta seriale, %1 se non indicato. La porta è un collegamento in quorvel/ports nella directory di esecuzione.</translation>
    </message>
    <message>
        <source>Unknown profile &apos;%1&apos;; --help lists them.</source>
        <translation>Profilo &apos;%1&apos; sconosciuto; --help li elenca.</translation>
    </message>
    <message>
        <source>The speed is %1 to %2 words per minute, not &apos;%3&apos;.</source>
        <translation>La velocità va da %1 a %2 parole al minuto, non &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a serial port: a name has 1 to 200 characters, no slash, and does not begin with a dot.</source>
        <translation>&apos;%1&apos; non può essere il nome di una porta seriale: un nome ha da 1 a 200 caratteri, nessuna barra, e non comincia con un punto.</translation>
    </message>
    <message>
        <source>The transcript needs a file name.</source>
        <translation>La trascrizione richiede un nome di file.</translation>
    </message>
    <message>
        <source>The registers need a file name.</source>
        <translation>I registri richiedono un nome di file.</translation>
    </message>
    <message>
        <source>A Morse keyer made of software: it plugs itself in as a serial port, obeys the host
program that opens it, and prints what it keys to standard output.</source>
        <translation>Un keyer Morse fatto di software: si collega da sé come porta seriale, obbedisce al programma
che la apre, e scrive ciò che manipola sull’uscita standard.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Mostra questo testo.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argomento inatteso &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Standard input works the paddle: &quot;.&quot; and &quot;-&quot; each close a contact, and anything else opens both.</source>
        <translation>Lo standard input aziona il paddle: «.» e «-» chiudono un contatto ciascuno, tutto il resto apre entrambi.</translation>
    </message>
    <message>
        <source>Shows no window.</source>
        <translation>Non mostra alcuna finestra.</translation>
    </message>
    <message>
        <source>Saves the sidetone to %1, a WAV file.</source>
        <translation>Salva il sidetone in %1, un file WAV.</translation>
    </message>
    <message>
        <source>Works the keyer as %1 says, &quot;-&quot; for standard input, and ends with it; the exit status is 3 if what it expects did not happen. Lines of it are: %2</source>
        <translation>Aziona il keyer come dice %1, «-» per lo standard input, e finisce con esso; lo stato d’uscita è 3 se non è avvenuto ciò che si attende. Le sue righe sono: %2</translation>
    </message>
    <message>
        <source>The script&apos;s time passes as fast as it can, and no port is plugged in.</source>
        <translation>Il tempo dello script passa il più in fretta possibile, e nessuna porta viene collegata.</translation>
    </message>
    <message>
        <source>The script needs a file name.</source>
        <translation>Lo script ha bisogno di un nome di file.</translation>
    </message>
    <message>
        <source>Only a script can be fast.</source>
        <translation>Solo uno script può essere veloce.</translation>
    </message>
    <message>
        <source>Standard input is either the script or the paddle.</source>
        <translation>Lo standard input è o lo script o il paddle.</translation>
    </message>
    <message>
        <source>The sound needs a file name.</source>
        <translation>Il suono ha bisogno di un nome di file.</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>QUOTA</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>SECONDI</translation>
    </message>
    <message>
        <source>What is wrong with the line, or several such things, separated by commas; a number may be left out:</source>
        <translation>Ciò che non va sulla linea, una o più cose, separate da virgole; un numero può mancare:</translation>
    </message>
    <message>
        <source>Has chance do the same to the line as it did with this number, 1 by default.</source>
        <translation>Fa sì che il caso tratti la linea come già con questo numero, 1 se manca.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no trouble; --help lists them.</source>
        <translation>«%1» non è un guasto della linea; --help li elenca.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no seed: a whole number, not below 0.</source>
        <translation>«%1» non è un seme: un numero intero, non sotto 0.</translation>
    </message>
</context>
<context>
    <name>WaitingLabel</name>
    <message>
        <source>%1 waiting</source>
        <translation>%1 in attesa</translation>
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
        <translation>Si rinuncia e si chiude la connessione al keyer.</translation>
    </message>
    <message>
        <source>See AMSerialErrors.h</source>
        <translation>Vedi AMSerialErrors.h</translation>
    </message>
    <message>
        <source>There is no port defined for the WinKeyer.</source>
        <translation>Non è definita alcuna porta per il WinKeyer.</translation>
    </message>
    <message>
        <source>Choose a serial port other than None in the General Preferences pane. Or, plug in a cable to your WinKeyer USB.</source>
        <translation>Scegli una porta seriale diversa da Nessuna nelle preferenze, sotto Generale. Oppure collega il cavo del tuo WinKeyer USB.</translation>
    </message>
    <message>
        <source>The WinKeyer serial port %1 is not available.</source>
        <translation>La porta seriale %1 del WinKeyer non è disponibile.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer is connected to the selected port, and that no other application is using that port. Also confirm that the FDTI driver is installed. Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.</source>
        <translation>Controlla che il WinKeyer sia connesso alla porta scelta, e che nessun’altra applicazione usi quella porta. Controlla anche che il driver FDTI sia installato. Il driver adatto per Mac OS X si trova su https://ftdichip.com/drivers/.</translation>
    </message>
    <message>
        <source>Unable to open the WinKeyer serial port %1.</source>
        <translation>Impossibile aprire la porta seriale %1 del WinKeyer.</translation>
    </message>
    <message>
        <source>Confirm that the USB-Serial device is connected and active.</source>
        <translation>Controlla che il dispositivo USB-seriale sia connesso e attivo.</translation>
    </message>
    <message>
        <source>WinKeyer sync failed with AMSerial code: </source>
        <translation>WinKeyer: sincronizzazione fallita con codice AMSerial: </translation>
    </message>
    <message>
        <source>WinKeyer echo test Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: comando Admin di prova dell’eco fallito con codice AMSerial: </translation>
    </message>
    <message>
        <source>WinKeyer Host Open Admin command failed.</source>
        <translation>WinKeyer: comando Admin Host Open fallito.</translation>
    </message>
    <message>
        <source>WinKeyer returned unsupported version: %1.</source>
        <translation>Il WinKeyer ha risposto con una versione non supportata: %1.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer version is between 20 and 23.</source>
        <translation>Controlla che la versione del WinKeyer sia tra 20 e 23.</translation>
    </message>
    <message>
        <source>WinKeyer Set WinKeyer 2 Mode Admin command failed.</source>
        <translation>WinKeyer: comando Admin Set WinKeyer 2 Mode fallito.</translation>
    </message>
    <message>
        <source>WinKeyer Host Close Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: comando Admin Host Close fallito con codice AMSerial: </translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>space</source>
        <translation>spazio</translation>
    </message>
    <message>
        <source>Leave the speed to the knob</source>
        <translation>Lasciare la velocità alla manopola</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendere</translation>
    </message>
    <message>
        <source>Key up</source>
        <translation>Tasto su</translation>
    </message>
    <message>
        <source>In the buffer: PTT off</source>
        <translation>Nel buffer: PTT disattivato</translation>
    </message>
    <message>
        <source>No Farnsworth</source>
        <translation>Niente Farnsworth</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>linea</translation>
    </message>
    <message>
        <source>both</source>
        <translation>entrambi</translation>
    </message>
    <message>
        <source>Buffer: overwrite at %1</source>
        <translation>Buffer: sovrascrivere da %1</translation>
    </message>
    <message>
        <source>Buffer: append at %1</source>
        <translation>Buffer: aggiungere da %1</translation>
    </message>
    <message>
        <source>Buffer: insert %1 nulls</source>
        <translation>Buffer: inserire %1 nulli</translation>
    </message>
    <message>
        <source>Buffer: move %1, unknown</source>
        <translation>Buffer: spostamento %1, sconosciuto</translation>
    </message>
    <message>
        <source>In the buffer: high speed, %1 WPM</source>
        <translation>Nel buffer: alta velocità, %1 WPM</translation>
    </message>
    <message>
        <source>Set the tone: %1</source>
        <translation>Impostare il tono: %1</translation>
    </message>
    <message>
        <source>Set speed %1 WPM</source>
        <translation>Impostare la velocità: %1 WPM</translation>
    </message>
    <message>
        <source>Set weighting %1 %</source>
        <translation>Impostare il peso: %1 %</translation>
    </message>
    <message>
        <source>Set PTT lead/tail %1, %2 ms</source>
        <translation>Impostare anticipo/ritardo PTT: %1, %2 ms</translation>
    </message>
    <message>
        <source>Set the knob&apos;s range %1 to %2 WPM</source>
        <translation>Impostare il campo della manopola: da %1 a %2 WPM</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Ask for the knob</source>
        <translation>Chiedere la manopola</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Set the pins: %1</source>
        <translation>Impostare i pin: %1</translation>
    </message>
    <message>
        <source>Clear buffer</source>
        <translation>Svuotare il buffer</translation>
    </message>
    <message>
        <source>Key down</source>
        <translation>Tasto giù</translation>
    </message>
    <message>
        <source>Set high speed %1 WPM</source>
        <translation>Impostare l’alta velocità: %1 WPM</translation>
    </message>
    <message>
        <source>Set Farnsworth %1 WPM</source>
        <translation>Impostare Farnsworth: %1 WPM</translation>
    </message>
    <message>
        <source>Set the mode: %1</source>
        <translation>Impostare il modo: %1</translation>
    </message>
    <message>
        <source>Load defaults: %1</source>
        <translation>Caricare i valori iniziali: %1</translation>
    </message>
    <message>
        <source>Set first extension %1 ms</source>
        <translation>Impostare il prolungamento iniziale: %1 ms</translation>
    </message>
    <message>
        <source>Set key compensation %1 ms</source>
        <translation>Impostare la compensazione: %1 ms</translation>
    </message>
    <message>
        <source>Set paddle memory %1 (50: a dit)</source>
        <translation>Impostare la memoria del paddle: %1 (50: un punto)</translation>
    </message>
    <message>
        <source>Null</source>
        <translation>Nullo</translation>
    </message>
    <message>
        <source>Paddle by the host: %1</source>
        <translation>Paddle dall’host: %1</translation>
    </message>
    <message>
        <source>Ask for the status</source>
        <translation>Chiedere lo stato</translation>
    </message>
    <message>
        <source>Buffer: to its beginning</source>
        <translation>Buffer: all’inizio</translation>
    </message>
    <message>
        <source>Set dah to dit %1 (50: 3 to 1)</source>
        <translation>Impostare linea a punto: %1 (50: 3 a 1)</translation>
    </message>
    <message>
        <source>In the buffer: PTT on</source>
        <translation>Nel buffer: PTT attivo</translation>
    </message>
    <message>
        <source>In the buffer: key down, %1 s</source>
        <translation>Nel buffer: tasto giù, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: wait, %1 s</source>
        <translation>Nel buffer: attesa, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: merge %1</source>
        <translation>Nel buffer: unire %1</translation>
    </message>
    <message>
        <source>In the buffer: %1 WPM</source>
        <translation>Nel buffer: %1 WPM</translation>
    </message>
    <message>
        <source>In the buffer: key output %1</source>
        <translation>Nel buffer: uscita di manipolazione %1</translation>
    </message>
    <message>
        <source>In the buffer: the speed that was set</source>
        <translation>Nel buffer: la velocità impostata</translation>
    </message>
    <message>
        <source>In the buffer: null</source>
        <translation>Nel buffer: nullo</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Calibrare</translation>
    </message>
    <message>
        <source>Reset the keyer</source>
        <translation>Riavviare il keyer</translation>
    </message>
    <message>
        <source>Open the keyer</source>
        <translation>Aprire il keyer</translation>
    </message>
    <message>
        <source>Close the keyer</source>
        <translation>Chiudere il keyer</translation>
    </message>
    <message>
        <source>Echo test %1</source>
        <translation>Prova di eco %1</translation>
    </message>
    <message>
        <source>Ask for the paddle A/D</source>
        <translation>Chiedere l’A/D del paddle</translation>
    </message>
    <message>
        <source>Ask for the speed A/D</source>
        <translation>Chiedere l’A/D della velocità</translation>
    </message>
    <message>
        <source>Ask for all values</source>
        <translation>Chiedere tutti i valori</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Ask for the calibration</source>
        <translation>Chiedere la calibrazione</translation>
    </message>
    <message>
        <source>Version 1 status</source>
        <translation>Stato di versione 1</translation>
    </message>
    <message>
        <source>Version 2 status</source>
        <translation>Stato di versione 2</translation>
    </message>
    <message>
        <source>Ask for the memory</source>
        <translation>Chiedere la memoria</translation>
    </message>
    <message>
        <source>Load the memory</source>
        <translation>Caricare la memoria</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Riproduci il messaggio %1</translation>
    </message>
    <message>
        <source>Load X1MODE %1</source>
        <translation>Caricare X1MODE %1</translation>
    </message>
    <message>
        <source>Line at 9600 baud</source>
        <translation>Linea a 9600 baud</translation>
    </message>
    <message>
        <source>Line at 1200 baud</source>
        <translation>Linea a 1200 baud</translation>
    </message>
    <message>
        <source>Admin command %1, unknown</source>
        <translation>Comando di gestione %1, sconosciuto</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>testo %1</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>attesa</translation>
    </message>
    <message>
        <source>key down</source>
        <translation>tasto giù</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupato</translation>
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
        <translation>stato: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>libero</translation>
    </message>
    <message>
        <source>push-buttons: %1</source>
        <translation>pulsanti: %1</translation>
    </message>
    <message>
        <source>open, version %1</source>
        <translation>aperto, versione %1</translation>
    </message>
    <message>
        <source>echo test %1</source>
        <translation>prova di eco %1</translation>
    </message>
    <message>
        <source>values: %1</source>
        <translation>valori: %1</translation>
    </message>
    <message>
        <source>memory, %1 bytes</source>
        <translation>memoria, %1 byte</translation>
    </message>
    <message>
        <source>answer %1</source>
        <translation>risposta %1</translation>
    </message>
    <message>
        <source>discarded by the keyer</source>
        <translation>scartato dal keyer</translation>
    </message>
    <message>
        <source>lost, the keyer is starting</source>
        <translation>perso, il keyer si sta avviando</translation>
    </message>
    <message>
        <source>unfinished command</source>
        <translation>comando incompleto</translation>
    </message>
    <message>
        <source>the keyer starts anew</source>
        <translation>il keyer si riavvia</translation>
    </message>
    <message>
        <source>echo %1</source>
        <translation>eco %1</translation>
    </message>
    <message>
        <source>knob: %1 WPM</source>
        <translation>manopola: %1 WPM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quorvel is running already, and does not answer. End it, then start it again.</source>
        <translation>Quorvel è già in esecuzione e non risponde. Terminalo, poi avvialo di nuovo.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KeyerWindow</name>
    <message>
        <source>Virtual keyer</source>
        <translation>Keyer virtuale</translation>
    </message>
    <message>
        <source>Plugged in as %1</source>
        <translation>Collegato come %1</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Collegato</translation>
    </message>
    <message>
        <source>Pulls the adapter and plugs it in again. Without it the keyer has no power, and forgets its host.</source>
        <translation>Scollega l’adattatore e lo ricollega. Senza di esso il keyer non ha corrente e dimentica il suo host.</translation>
    </message>
    <message>
        <source>Speed knob</source>
        <translation>Manopola di velocità</translation>
    </message>
    <message>
        <source>Counts within the range that the host has set, and only while the host leaves the speed to it.</source>
        <translation>Conta entro il campo impostato dall’host, e solo finché l’host gli lascia la velocità.</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Push-buttons</source>
        <translation>Pulsanti</translation>
    </message>
    <message>
        <source>The host hears of them once it has asked for version 2 status.</source>
        <translation>L’host ne viene informato dopo aver chiesto lo stato di versione 2.</translation>
    </message>
    <message>
        <source>Push-button %1</source>
        <translation>Pulsante %1</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Kind of keyer</source>
        <translation>Tipo di keyer</translation>
    </message>
    <message>
        <source>Keyed text</source>
        <translation>Testo manipolato</translation>
    </message>
    <message>
        <source>What is keyed, by the host or the paddle, is read back here from the key line.</source>
        <translation>Ciò che manipola l’host o il paddle viene riletto qui dalla linea di manipolazione.</translation>
    </message>
    <message>
        <source>Record a script</source>
        <translation>Registra uno script</translation>
    </message>
    <message>
        <source>Writes down what is done here, for --script to do again: press once more to save it.</source>
        <translation>Annota ciò che si fa qui, perché --script lo rifaccia: premere di nuovo per salvarlo.</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>Salva lo script</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Sidetone</translation>
    </message>
    <message>
        <source>How loud this machine plays what is keyed; the host sets the pitch.</source>
        <translation>Il volume con cui questa macchina riproduce ciò che viene manipolato; l’altezza la imposta l’host.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>No sound device: it is silent.</source>
        <translation>Nessun dispositivo audio: è muto.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oscilloscopio</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Registro di linea</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Esercizio</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KindList</name>
    <message>
        <source>Kinds of keyer</source>
        <translation>Tipi di keyer</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::Lamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: acceso</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: spento</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::LampRow</name>
    <message>
        <source>Key</source>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
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
        <translation>Attesa</translation>
    </message>
    <message>
        <source>The transmitter would be keyed. Nothing here is on the air.</source>
        <translation>Il trasmettitore sarebbe manipolato. Da qui nulla va in onda.</translation>
    </message>
    <message>
        <source>The transmitter would be switched on.</source>
        <translation>Il trasmettitore sarebbe acceso.</translation>
    </message>
    <message>
        <source>The host&apos;s text, the paddle or the tune command keys.</source>
        <translation>Manipola il testo dell’host, il paddle o il comando di accordo.</translation>
    </message>
    <message>
        <source>The paddle has the key, and the host&apos;s text has gone.</source>
        <translation>Il paddle ha il tasto, e il testo dell’host è andato.</translation>
    </message>
    <message>
        <source>The buffer is nearly full; the host has to wait.</source>
        <translation>Il buffer è quasi pieno; l’host deve aspettare.</translation>
    </message>
    <message>
        <source>A wait or a key-down of the host&apos;s, with a time of its own, or a tune.</source>
        <translation>Un’attesa o una pressione dell’host di durata propria, o un accordo.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::MessageList</name>
    <message>
        <source>Play %1</source>
        <translation>Riproduci %1</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Riproduci il messaggio %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Messaggio %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PaddlePanel</name>
    <message>
        <source>Paddle</source>
        <translation>Paddle</translation>
    </message>
    <message>
        <source>Dit (F)</source>
        <translation>Punto (F)</translation>
    </message>
    <message>
        <source>Dah (J)</source>
        <translation>Linea (J)</translation>
    </message>
    <message>
        <source>Hold a button, or the keys F and J; both at once for a squeeze.</source>
        <translation>Tenere premuto un pulsante, o i tasti F e J; entrambi insieme per la doppia pressione.</translation>
    </message>
    <message>
        <source>Dit paddle</source>
        <translation>Paddle dei punti</translation>
    </message>
    <message>
        <source>Dah paddle</source>
        <translation>Paddle delle linee</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PracticePage</name>
    <message>
        <source>Text to be sent</source>
        <translation>Testo da trasmettere</translation>
    </message>
    <message>
        <source>Letters that work the paddle are letters while this has the keyboard; Enter begins, and hands them back.</source>
        <translation>Le lettere che muovono il paddle sono lettere finché questo campo ha la tastiera; Invio comincia e le restituisce.</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>X for A: X was sent instead of A. No A: A was left out. And X: X was one too many.</source>
        <translation>X per A: X è stata trasmessa al posto di A. Senza A: A è stata omessa. E X: X era di troppo.</translation>
    </message>
    <message>
        <source>Lengths in dits</source>
        <translation>Durate in punti</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Trasmessi</translation>
    </message>
    <message>
        <source>Ideal</source>
        <translation>Ideale</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>From half to 1.5 of the ideal</source>
        <translation>Dalla metà a 1,5 dell’ideale</translation>
    </message>
    <message>
        <source>Dit</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Dah</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Letter space</source>
        <translation>Spazio tra lettere</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Spazio tra parole</translation>
    </message>
    <message>
        <source>Right: %1 of %2</source>
        <translation>Giusti: %1 su %2</translation>
    </message>
    <message>
        <source>space</source>
        <translation>spazio</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 per %2</translation>
    </message>
    <message>
        <source>no %1</source>
        <translation>senza %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>e %1</translation>
    </message>
    <message>
        <source>Send the text with the paddle.</source>
        <translation>Trasmetti il testo con il paddle.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::RegisterTable</name>
    <message>
        <source>Registers</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopePage</name>
    <message>
        <source>Place in the last ten minutes</source>
        <translation>Punto negli ultimi dieci minuti</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause the scope</source>
        <translation>Metti in pausa l’oscilloscopio</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Più vicino</translation>
    </message>
    <message>
        <source>Less time, closer</source>
        <translation>Meno tempo, più vicino</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>Più ampio</translation>
    </message>
    <message>
        <source>More time, wider</source>
        <translation>Più tempo, più ampio</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Immagine…</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>Salva un’immagine</translation>
    </message>
    <message>
        <source>Table…</source>
        <translation>Tabella…</translation>
    </message>
    <message>
        <source>Save a table of the last ten minutes</source>
        <translation>Salva una tabella degli ultimi dieci minuti</translation>
    </message>
    <message>
        <source>Save a table</source>
        <translation>Salva una tabella</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopeView</name>
    <message>
        <source>Scope of key and PTT</source>
        <translation>Oscilloscopio di tasto e PTT</translation>
    </message>
    <message>
        <source>Arrows move the first cursor, with Shift the second, with Ctrl from edge to edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go through the last ten minutes.</source>
        <translation>Le frecce muovono il primo cursore, con Maiusc il secondo, con Ctrl da fronte a fronte. + e - cambiano la scala, la barra spaziatrice mette in pausa; Pag su, Pag giù, Inizio e Fine percorrono gli ultimi dieci minuti.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLog</name>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Keyer</source>
        <translation>Keyer</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>Said by</source>
        <translation>Detto da</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>A parole</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Byte</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLogPage</name>
    <message>
        <source>Said by</source>
        <translation>Detto da</translation>
    </message>
    <message>
        <source>Host and keyer</source>
        <translation>Host e keyer</translation>
    </message>
    <message>
        <source>The host alone</source>
        <translation>Solo l’host</translation>
    </message>
    <message>
        <source>The keyer alone</source>
        <translation>Solo il keyer</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>Filtro del registro</translation>
    </message>
    <message>
        <source>Words or bytes</source>
        <translation>Parole o byte</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Svuota il registro</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salva…</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Salva il registro</translation>
    </message>
    <message>
        <source>Saves what is shown, with all its bytes.</source>
        <translation>Salva ciò che è mostrato, con tutti i byte.</translation>
    </message>
    <message>
        <source>Log of the line</source>
        <translation>Registro della linea</translation>
    </message>
</context>
</TS>
