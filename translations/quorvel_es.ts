<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Quorvel</source>
        <translation>Acerca de Quorvel</translation>
    </message>
    <message>
        <source>Quorvel %1</source>
        <translation>Quorvel %1</translation>
    </message>
    <message>
        <source>Sends Morse code through a WinKeyer USB keyer.

Free software under the MIT licence, made with Qt %1.</source>
        <translation>Transmite morse mediante un manipulador WinKeyer USB.

Software libre con licencia MIT, hecho con Qt %1.</translation>
    </message>
</context>
<context>
    <name>AlertBox</name>
    <message>
        <source>Takes keys when you have stopped typing for a second</source>
        <translation>Admite teclas cuando lleve un segundo sin teclear</translation>
    </message>
</context>
<context>
    <name>AnswerNotice</name>
    <message>
        <source>Ask again</source>
        <translation>Preguntar de nuevo</translation>
    </message>
    <message>
        <source>The keyer on %1 does not answer. Look at its power, its cable, and whether this is its port.</source>
        <translation>El manipulador en %1 no responde. Mire su alimentación, su cable y si este es su puerto.</translation>
    </message>
    <message>
        <source>Nothing has come from the keyer on %1 for 10 s, though a character is on its way to it. It may have started anew.</source>
        <translation>No llega nada del manipulador en %1 desde hace 10 s, aunque hay un carácter en camino hacia él. Quizá se ha reiniciado.</translation>
    </message>
</context>
<context>
    <name>BoundControl</name>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>Reset “%1” to its default, %2</source>
        <translation>Restablecer «%1» a su valor predeterminado, %2</translation>
    </message>
    <message>
        <source>Reset %1 to %2</source>
        <translation>Restablecer %1 a %2</translation>
    </message>
    <message>
        <source>stored: %1</source>
        <translation>guardado: %1</translation>
    </message>
    <message>
        <source>%1 to %2, default %3</source>
        <translation>%1 a %2, predeterminado %3</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predeterminado: %1</translation>
    </message>
    <message>
        <source>%1. It stays until it is changed here.</source>
        <translation>%1. Sigue así hasta que se cambie aquí.</translation>
    </message>
</context>
<context>
    <name>BoundNumber</name>
    <message>
        <source>%1 will become %2.</source>
        <translation>%1 pasará a ser %2.</translation>
    </message>
    <message>
        <source>“%1” is not a number. It stays at %2.</source>
        <translation>«%1» no es un número. Sigue en %2.</translation>
    </message>
    <message>
        <source>%1 is out of range: %2 to %3. It stays at %4.</source>
        <translation>%1 está fuera del intervalo: %2 a %3. Sigue en %4.</translation>
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
        <translation>Uso: quorvel [opciones]
Transmite morse mediante un manipulador WinKeyer USB.

Opciones:
  -h, --help     Muestra este texto.
  -v, --version  Muestra la versión.
  --check-ports  Dice qué estorba a cada puerto serie.
      --ask-keyer PORT
                 Detrás: pregunta también al manipulador en este puerto.

También valen las opciones de la biblioteca gráfica, como -platform y -style. La guía está en Ayuda.
</translation>
    </message>
</context>
<context>
    <name>ConnectionStrip</name>
    <message>
        <source>Not connected: nothing is sent, and what you type now is forgotten when a keyer is connected.</source>
        <translation>Sin conexión: no se transmite nada, y lo que teclee ahora se olvida al conectar un manipulador.</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Elegir puerto…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Elegir puerto</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Comprobar puertos…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Comprobar puertos</translation>
    </message>
    <message>
        <source>The computer goes to sleep: nothing is sent now, and what you enter waits until you take Pause off.</source>
        <translation>El equipo se duerme: ahora no se transmite nada, y lo que introduzca espera hasta que quite la pausa.</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>First steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>Choose port…</source>
        <translation>Elegir puerto…</translation>
    </message>
    <message>
        <source>Choose port</source>
        <translation>Elegir puerto</translation>
    </message>
    <message>
        <source>Your call sign</source>
        <translation>Su indicativo</translation>
    </message>
    <message>
        <source>Sent for each ` in a message</source>
        <translation>Se transmite por cada ` de un mensaje</translation>
    </message>
    <message>
        <source>Enter your own call sign.</source>
        <translation>Escriba su propio indicativo.</translation>
    </message>
    <message>
        <source>Press F1 to send CQ, or type. Esc stops at once.</source>
        <translation>Pulse F1 para transmitir CQ, o teclee. Esc para al instante.</translation>
    </message>
    <message>
        <source>Try without a keyer</source>
        <translation>Probar sin manipulador</translation>
    </message>
    <message>
        <source>Starts a keyer made of software, which keys nothing on the air</source>
        <translation>Arranca un manipulador de software, que no manipula nada en el aire</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Comprobar puertos…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Comprobar puertos</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Close first steps</source>
        <translation>Cerrar los primeros pasos</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>Conectado a %1.</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port.</source>
        <translation>Enchufe el manipulador y diga Sí a su puerto. Si ya estaba enchufado, elija su puerto.</translation>
    </message>
    <message>
        <source>Step %1, done</source>
        <translation>Paso %1, hecho</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Paso %1</translation>
    </message>
    <message>
        <source>Plug the keyer in, and say Yes to its port. If it was plugged in before, choose its port. What you type until then is not sent, and is forgotten.</source>
        <translation>Enchufe el manipulador y diga Sí a su puerto. Si ya estaba enchufado, elija su puerto. Lo que teclee hasta entonces no se transmite, y se olvida.</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>en</source>
        <extracomment>The folder of docs/guide that is in this language; as it is where there is none.</extracomment>
        <translation>es</translation>
    </message>
</context>
<context>
    <name>GuideButton</name>
    <message>
        <source>Guide to these settings</source>
        <translation>Guía de estos ajustes</translation>
    </message>
    <message>
        <source>Opens the guide where these settings are explained.</source>
        <translation>Abre la guía donde se explican estos ajustes.</translation>
    </message>
</context>
<context>
    <name>GuideWindow</name>
    <message>
        <source>Quorvel Guide</source>
        <translation>Guía de Quorvel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Searches all chapters (Ctrl+F). Enter goes to the next place.</source>
        <translation>Busca en todos los capítulos (Ctrl+F). Intro va al lugar siguiente.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Lugares encontrados</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>Places found: %1</source>
        <translation>Lugares encontrados: %1</translation>
    </message>
    <message>
        <source>Place %1 of %2</source>
        <translation>Lugar %1 de %2</translation>
    </message>
    <message>
        <source>The first %1 places</source>
        <translation>Los %1 primeros lugares</translation>
    </message>
</context>
<context>
    <name>KeyGuard</name>
    <message>
        <source>The key guard does not run: should Quorvel crash or hang while tune is on, the key stays down. Install Quorvel again.</source>
        <translation>El guardián del manipulador no funciona: si Quorvel falla o se bloquea durante la sintonía, la llave queda bajada. Instale Quorvel de nuevo.</translation>
    </message>
    <message>
        <source>Quorvel did not react for %1 s while tune was on, and the key was let go of.</source>
        <translation>Quorvel no reaccionó durante %1 s con la sintonía activada, y se soltó la llave.</translation>
    </message>
</context>
<context>
    <name>KeyboardView</name>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Sin conexión: no se transmite nada</translation>
    </message>
    <message>
        <source>Nothing waits to be sent</source>
        <translation>Nada espera ser transmitido</translation>
    </message>
    <message>
        <source>Characters still to be sent: %1</source>
        <translation>Caracteres aún por transmitir: %1</translation>
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
        <translation>ajustada</translation>
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
        <translation>Punto %1, raya %2, silencio %3, espacio entre letras %4</translation>
    </message>
    <message>
        <source>%1, first element %2 longer</source>
        <translation>%1, primer elemento %2 más largo</translation>
    </message>
    <message>
        <source>&amp;Picture at</source>
        <translation>&amp;Imagen a</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Keyed wave of %1</source>
        <translation>Onda manipulada de %1</translation>
    </message>
    <message>
        <source>The letters %1 as they are keyed with these settings, in front of plain keying at the same speed. The lines of the grid are one dit apart.</source>
        <translation>Las letras %1 tal como se manipulan con estos ajustes, delante de la manipulación neutra a la misma velocidad. Las líneas de la cuadrícula están a un punto de distancia.</translation>
    </message>
    <message>
        <source>The keyer&apos;s speed pot is at this speed, and the picture follows it.</source>
        <translation>El potenciómetro de velocidad del manipulador está en esta velocidad, y la imagen lo sigue.</translation>
    </message>
    <message>
        <source>The speed that the picture is drawn for. It follows the keyer&apos;s speed pot once the keyer is connected.</source>
        <translation>La velocidad para la que se dibuja la imagen. Sigue al potenciómetro del manipulador en cuanto este se conecta.</translation>
    </message>
</context>
<context>
    <name>KeyerNotice</name>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
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
        <translation>El equipo duerme: %1 está cerrado</translation>
    </message>
    <message>
        <source>Transmitting on %1: tune is on</source>
        <translation>Transmitiendo en %1: sintonía activada</translation>
    </message>
    <message>
        <source>Connected to %1, waiting for the keyer&apos;s first byte</source>
        <translation>Conectado a %1, esperando el primer byte del manipulador</translation>
    </message>
    <message>
        <source>Connected to %1: idle</source>
        <translation>Conectado a %1: en reposo</translation>
    </message>
    <message>
        <source>Connected to %1: sending</source>
        <translation>Conectado a %1: transmitiendo</translation>
    </message>
    <message>
        <source>Connected to %1: break-in (paddle)</source>
        <translation>Conectado a %1: break-in (palas)</translation>
    </message>
    <message>
        <source>Connected to %1: buffer full</source>
        <translation>Conectado a %1: búfer lleno</translation>
    </message>
    <message>
        <source>Connected to %1: paused</source>
        <translation>Conectado a %1: en pausa</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>high-speed CW</source>
        <translation>CW rápida</translation>
    </message>
    <message>
        <source>beacon again in %1 s</source>
        <translation>baliza en %1 s</translation>
    </message>
    <message>
        <source>beacon on</source>
        <translation>baliza activada</translation>
    </message>
</context>
<context>
    <name>KeyingRecord</name>
    <message>
        <source>Quorvel ended while it was sending. The rest was not sent, and the key is up.</source>
        <translation>Quorvel terminó en plena transmisión. El resto no se transmitió, y la llave está arriba.</translation>
    </message>
    <message>
        <source>Quorvel ended while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>Quorvel terminó durante la sintonía. La llave pudo quedar bajada; ahora se ha soltado.</translation>
    </message>
    <message>
        <source>The keyer was unplugged while tune was on. The key may have stayed down; it has been let go of now.</source>
        <translation>El manipulador se desenchufó durante la sintonía. La llave pudo quedar bajada; ahora se ha soltado.</translation>
    </message>
</context>
<context>
    <name>LoggerSocket</name>
    <message>
        <source>Loggers: there is no such port</source>
        <translation>Logs: ese puerto no existe</translation>
    </message>
    <message>
        <source>Loggers: port %1</source>
        <translation>Logs: puerto %1</translation>
    </message>
    <message>
        <source>Loggers: port %1 cannot be had: %2</source>
        <translation>Logs: no se puede tener el puerto %1: %2</translation>
    </message>
    <message>
        <source>Loggers: port %1 is taken by %2</source>
        <translation>Logs: el puerto %1 lo tiene %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from port %2</source>
        <translation>Logs: puerto %1, último del puerto %2</translation>
    </message>
    <message>
        <source>Loggers: port %1, last from %2</source>
        <translation>Logs: puerto %1, último de %2</translation>
    </message>
</context>
<context>
    <name>MBPreferencesController</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
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
        <translation>Mensaje 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Mensaje 2</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Mensaje 3</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Mensaje 4</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Mensaje 5</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Mensaje 6</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Mensaje 7</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Mensaje 8</translation>
    </message>
    <message>
        <source>&amp;Their call</source>
        <translation>Co&amp;rresponsal</translation>
    </message>
    <message>
        <source>Their call</source>
        <translation>Corresponsal</translation>
    </message>
    <message>
        <source>The other station&apos;s call sign; ~ in a message stands for it</source>
        <translation>El indicativo de la otra estación; ~ lo representa en un mensaje</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Número</translation>
    </message>
    <message>
        <source>Decrement serial number</source>
        <translation>Disminuir el número de serie</translation>
    </message>
    <message>
        <source>One less</source>
        <translation>Uno menos</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>The number of this contact; # in a message stands for it</source>
        <translation>El número de este contacto; # lo representa en un mensaje</translation>
    </message>
    <message>
        <source>Increment serial number</source>
        <translation>Aumentar el número de serie</translation>
    </message>
    <message>
        <source>One more</source>
        <translation>Uno más</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stop sending at once and forget the text</source>
        <translation>Dejar de transmitir al instante y olvidar el texto</translation>
    </message>
    <message>
        <source>Tune</source>
        <translation>Sintonía</translation>
    </message>
    <message>
        <source>Key the transmitter steadily</source>
        <translation>Manipular el transmisor de forma continua</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Hold the text back</source>
        <translation>Retener el texto</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>HSCW</translation>
    </message>
    <message>
        <source>Send at the high speed of the preferences</source>
        <translation>Transmitir a la alta velocidad de las preferencias</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Baliza</translation>
    </message>
    <message>
        <source>Repeat the next message until stopped</source>
        <translation>Repetir el próximo mensaje hasta que se pare</translation>
    </message>
    <message>
        <source>Keyer status</source>
        <translation>Estado del manipulador</translation>
    </message>
    <message>
        <source>What the keyer is doing</source>
        <translation>Qué hace el manipulador</translation>
    </message>
    <message>
        <source>Characters that are still to be sent</source>
        <translation>Caracteres que quedan por transmitir</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>En&amp;viar</translation>
    </message>
    <message>
        <source>&amp;Keyer</source>
        <translation>&amp;Manipulador</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>&amp;QSO</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>&amp;High-speed CW</source>
        <translation>CW &amp;rápida (HSCW)</translation>
    </message>
    <message>
        <source>&amp;Their Call</source>
        <translation>Co&amp;rresponsal</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Teclado</translation>
    </message>
    <message>
        <source>Ne&amp;xt Contact</source>
        <translation>&amp;Contacto siguiente</translation>
    </message>
    <message>
        <source>&amp;Wipe Their Call</source>
        <translation>&amp;Borrar el corresponsal</translation>
    </message>
    <message>
        <source>&amp;Increment Serial Number</source>
        <translation>&amp;Aumentar el número de serie</translation>
    </message>
    <message>
        <source>&amp;Decrement Serial Number</source>
        <translation>&amp;Disminuir el número de serie</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>&amp;About Quorvel</source>
        <translation>&amp;Acerca de Quorvel</translation>
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
        <translation>Teclado</translation>
    </message>
    <message>
        <source>What is typed here is sent</source>
        <translation>Lo que se teclea aquí se transmite</translation>
    </message>
    <message>
        <source>Tune was let go of after %1 s.</source>
        <translation>La sintonía se soltó tras %1 s.</translation>
    </message>
    <message>
        <source>Type here to send</source>
        <translation>Teclee aquí para transmitir</translation>
    </message>
    <message>
        <source>Not connected: nothing is sent</source>
        <translation>Sin conexión: no se transmite nada</translation>
    </message>
    <message>
        <source>What you send waits for the paddle to be free: Esc drops it</source>
        <translation>Lo que transmite espera a que las palas queden libres: Esc lo descarta</translation>
    </message>
    <message>
        <source>Typing here sends again: End goes to the end</source>
        <translation>Lo que teclee aquí transmite de nuevo: Fin va al final</translation>
    </message>
    <message>
        <source>. </source>
        <translation>. </translation>
    </message>
    <message>
        <source>TRANSMITTING – Quorvel</source>
        <translation>TRANSMITIENDO – Quorvel</translation>
    </message>
    <message>
        <source>Whether the speed is the knob&apos;s, or set from the computer</source>
        <translation>Si la velocidad es la del mando, o fijada desde el ordenador</translation>
    </message>
    <message>
        <source>The speed; a click goes back to that of the keyer&apos;s knob</source>
        <translation>La velocidad; un clic vuelve a la del mando del manipulador</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Más rápi&amp;do</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Más &amp;lento</translation>
    </message>
    <message>
        <source>A Little Faster</source>
        <translation>Un poco más rápido</translation>
    </message>
    <message>
        <source>A Little Slower</source>
        <translation>Un poco más lento</translation>
    </message>
    <message>
        <source>Speed of the &amp;Knob</source>
        <translation>Velocidad del &amp;mando</translation>
    </message>
    <message>
        <source>&amp;Check Ports…</source>
        <translation>&amp;Comprobar puertos…</translation>
    </message>
    <message>
        <source>&amp;Try Without a Keyer</source>
        <translation>&amp;Probar sin manipulador</translation>
    </message>
    <message>
        <source>Check ports…</source>
        <translation>Comprobar puertos…</translation>
    </message>
    <message>
        <source>Check ports</source>
        <translation>Comprobar puertos</translation>
    </message>
    <message>
        <source>&amp;Accept Text from Loggers</source>
        <translation>&amp;Aceptar texto de los logs</translation>
    </message>
    <message>
        <source>⚠ TRANSMITTING: tune is on. Press Esc to let go.</source>
        <translation>⚠ TRANSMITIENDO: sintonía activada. Esc la suelta.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>W&amp;indow</source>
        <translation>Vi&amp;sta</translation>
    </message>
    <message>
        <source>&amp;Sent</source>
        <translation>&amp;Transmitido</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>MemoryGauge</name>
    <message>
        <source>Keyer memory</source>
        <translation>Memoria del manipulador</translation>
    </message>
    <message>
        <source>How the six messages share the keyer&apos;s memory, a byte a character. One byte always stays free.</source>
        <translation>Cómo se reparten los seis mensajes la memoria del manipulador, un byte por carácter. Siempre queda un byte libre.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes used</source>
        <translation>%1 de %2 bytes ocupados</translation>
    </message>
    <message>
        <source>%1; left out: %2</source>
        <translation>%1; omitidos: %2</translation>
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
        <translation>espera a las palas</translation>
    </message>
</context>
<context>
    <name>MessageButtons</name>
    <message>
        <source>Message %1: %2</source>
        <translation>Mensaje %1: %2</translation>
    </message>
    <message>
        <source>Waits for the paddle: %1</source>
        <translation>Espera a las palas: %1</translation>
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
        <translation>La CW rápida necesita un manipulador, y no hay ninguno conectado</translation>
    </message>
</context>
<context>
    <name>NamedProfile</name>
    <message>
        <source>a version 2 keyer, firmware 23</source>
        <translation>un manipulador de versión 2, firmware 23</translation>
    </message>
    <message>
        <source>echoes after the letter space, &quot;|&quot; too; keys &quot;?&quot; for what has no Morse</source>
        <translation>eco tras el espacio entre letras, también de &quot;|&quot;; manipula &quot;?&quot; por lo que no tiene morse</translation>
    </message>
    <message>
        <source>never echoes the text, whatever the host has set</source>
        <translation>nunca devuelve el texto en eco, diga lo que diga el anfitrión</translation>
    </message>
    <message>
        <source>sends a status byte after the version byte</source>
        <translation>envía un byte de estado tras el byte de versión</translation>
    </message>
    <message>
        <source>sends the last echo and the idle status back to back</source>
        <translation>envía el último eco y el estado de reposo seguidos</translation>
    </message>
    <message>
        <source>the same, the idle status first</source>
        <translation>lo mismo, el estado de reposo primero</translation>
    </message>
    <message>
        <source>asks for a pause at 21 waiting bytes, and again for every more</source>
        <translation>pide una pausa con 21 bytes en espera, y otra vez con cada uno más</translation>
    </message>
    <message>
        <source>drops the key in mid-letter when the buffer is cleared</source>
        <translation>suelta la llave a media letra cuando se vacía el búfer</translation>
    </message>
    <message>
        <source>restarts when the port is opened and is deaf for 1.3 s</source>
        <translation>se reinicia al abrirse el puerto y está sordo 1,3 s</translation>
    </message>
    <message>
        <source>beeps for half a second before it obeys its first command</source>
        <translation>pita medio segundo antes de obedecer la primera orden</translation>
    </message>
    <message>
        <source>throws a loaded memory away without a word</source>
        <translation>desecha sin decir nada la memoria cargada</translation>
    </message>
    <message>
        <source>reports break-in by a single C2 first</source>
        <translation>comunica el break-in primero con un solo C2</translation>
    </message>
    <message>
        <source>is idle for the host until the paddle has keyed for 160 ms</source>
        <translation>está en reposo para el anfitrión hasta que las palas manipulan 160 ms</translation>
    </message>
    <message>
        <source>keys a letter once more that a pause came into</source>
        <translation>manipula otra vez la letra en la que cayó una pausa</translation>
    </message>
    <message>
        <source>echoes the letter that the paddle cut before the break-in</source>
        <translation>devuelve el eco de la letra que cortaron las palas antes del break-in</translation>
    </message>
    <message>
        <source>keys what waited when the paddle has rested, unless the host clears it</source>
        <translation>manipula lo que esperaba cuando las palas descansan, si el anfitrión no lo borra</translation>
    </message>
    <message>
        <source>stays at the last speed when the host gives it back to the knob</source>
        <translation>se queda en la última velocidad cuando el anfitrión la devuelve al mando</translation>
    </message>
    <message>
        <source>reports the knob to a host, and does not obey it</source>
        <translation>comunica el mando al anfitrión y no le obedece</translation>
    </message>
    <message>
        <source>asks for a pause by C1, without the bit for busy</source>
        <translation>pide una pausa con C1, sin el bit de ocupado</translation>
    </message>
    <message>
        <source>takes a push-button in the midst of text for a break-in</source>
        <translation>toma un pulsador en medio del texto por un break-in</translation>
    </message>
    <message>
        <source>ends a tune for the paddle, a letter or a message, without a word</source>
        <translation>termina la sintonía sin decir nada por las palas, una letra o un mensaje</translation>
    </message>
    <message>
        <source>swallows a tune that begins in the midst of text</source>
        <translation>se traga una sintonía que empieza en medio del texto</translation>
    </message>
    <message>
        <source>says and does nothing for 0.44 s behind its version byte</source>
        <translation>no dice ni hace nada durante 0,44 s tras su byte de versión</translation>
    </message>
    <message>
        <source>swallows text for 0.1 s after the buffer was cleared</source>
        <translation>se traga el texto durante 0,1 s tras vaciarse el búfer</translation>
    </message>
    <message>
        <source>reports press and release of a push-button together, at the release</source>
        <translation>comunica juntas la pulsación y la suelta de un pulsador, al soltarlo</translation>
    </message>
</context>
<context>
    <name>NamedTrouble</name>
    <message>
        <source>bytes that do not arrive</source>
        <translation>bytes que no llegan</translation>
    </message>
    <message>
        <source>bytes that arrive twice</source>
        <translation>bytes que llegan dos veces</translation>
    </message>
    <message>
        <source>bytes of which a bit is wrong</source>
        <translation>bytes con un bit erróneo</translation>
    </message>
    <message>
        <source>each byte is up to so much late, by chance</source>
        <translation>cada byte llega al azar hasta tanto más tarde</translation>
    </message>
    <message>
        <source>each byte is so much late, as over a network</source>
        <translation>cada byte llega tanto más tarde, como por una red</translation>
    </message>
    <message>
        <source>the host gets what has come as often as this, in one read</source>
        <translation>el anfitrión recibe con este intervalo lo que ha llegado, en una sola lectura</translation>
    </message>
    <message>
        <source>no character from the keyer arrives</source>
        <translation>no llega ningún carácter del manipulador</translation>
    </message>
    <message>
        <source>nobody takes what the host sends</source>
        <translation>nadie recoge lo que envía el anfitrión</translation>
    </message>
    <message>
        <source>the keyer starts anew so long after the port was opened</source>
        <translation>el manipulador se reinicia ese tiempo después de abrirse el puerto</translation>
    </message>
    <message>
        <source>the port goes so long after it was opened, and comes back; the keyer keeps its power</source>
        <translation>el puerto desaparece ese tiempo después de abrirse, y vuelve; el manipulador conserva su alimentación</translation>
    </message>
</context>
<context>
    <name>NoticeStrip</name>
    <message>
        <source>Close notice</source>
        <translation>Cerrar el aviso</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>PortCheckCommand</name>
    <message>
        <source>%1 is not asked: it is not there, or not free.</source>
        <translation>A %1 no se le pregunta: no está, o no está libre.</translation>
    </message>
    <message>
        <source>The keyer on %1</source>
        <translation>El manipulador en %1</translation>
    </message>
</context>
<context>
    <name>PortCheckWindow</name>
    <message>
        <source>Check Ports</source>
        <translation>Comprobar puertos</translation>
    </message>
    <message>
        <source>What is in the way of each port, and what to do about it. Looking opens no port. Commands are for a terminal.</source>
        <translation>Qué estorba a cada puerto y qué hacer. Mirar no abre ningún puerto. Las órdenes son para un terminal.</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Puertos</translation>
    </message>
    <message>
        <source>Check &amp;again</source>
        <translation>Comprobar &amp;otra vez</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copiar el &amp;informe</translation>
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
        <translation>Orden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Copiar la orden</translation>
    </message>
    <message>
        <source>Ask the keyer</source>
        <translation>Preguntar al manipulador</translation>
    </message>
    <message>
        <source>Opens the port for a moment, and has a keyer send a character back. Nothing is keyed by it; but opening raises the lines DTR and RTS, which key a transmitter that is wired to them.</source>
        <translation>Abre el puerto un momento y hace que un manipulador devuelva un carácter. No se manipula nada; pero al abrir se levantan las líneas DTR y RTS, que manipulan un transmisor conectado a ellas.</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>Preguntando…</translation>
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
        <translation>Aún no puede abrirlo: es miembro del grupo %1, pero esta sesión empezó antes.</translation>
    </message>
    <message>
        <source>Log out, and log in again.</source>
        <translation>Cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>You may not open it: the members of the group %1 may.</source>
        <translation>No puede abrirlo: los miembros del grupo %1 sí pueden.</translation>
    </message>
    <message>
        <source>Become a member, then log out and log in again:</source>
        <translation>Hágase miembro, cierre la sesión y vuelva a entrar:</translation>
    </message>
    <message>
        <source>You may not open it: root alone may.</source>
        <translation>No puede abrirlo: solo root puede.</translation>
    </message>
    <message>
        <source>See who may:</source>
        <translation>Mire quién puede:</translation>
    </message>
    <message>
        <source>Whoever sits at this machine may as well, but this session is not the one at its screen.</source>
        <translation>También puede quien se sienta a este equipo, pero esta sesión no es la de su pantalla.</translation>
    </message>
    <message>
        <source>With Quorvel&apos;s package installed, whoever sits at the machine may as well: pull the adapter out and plug it in again.</source>
        <translation>Con el paquete de Quorvel instalado, también puede quien se sienta al equipo: desenchufe el adaptador y enchúfelo otra vez.</translation>
    </message>
    <message>
        <source>It has just gone.</source>
        <translation>Acaba de desaparecer.</translation>
    </message>
    <message>
        <source>Plug it in again, and use another cable or socket if it goes by itself.</source>
        <translation>Enchúfelo otra vez, y use otro cable u otra toma si desaparece solo.</translation>
    </message>
    <message>
        <source>Another program has it open: %1.</source>
        <translation>Otro programa lo tiene abierto: %1.</translation>
    </message>
    <message>
        <source>End that program. This shows all that have it, those of other users too:</source>
        <translation>Cierre ese programa. Esto muestra todos los que lo tienen, también los de otros usuarios:</translation>
    </message>
    <message>
        <source>The service for modems, ModemManager, may send its questions to this port when it is plugged in, and a keyer may key them.</source>
        <translation>El servicio de módems, ModemManager, puede enviar sus preguntas a este puerto al enchufarlo, y un manipulador puede manipularlas.</translation>
    </message>
    <message>
        <source>Keep it away with this rule, then plug the adapter in again:</source>
        <translation>Manténgalo lejos con esta regla, y vuelva a enchufar el adaptador:</translation>
    </message>
    <message>
        <source>The service for braille displays, brltty, takes this chip for one of them, and may take the port away.</source>
        <translation>El servicio de pantallas braille, brltty, toma este chip por una de ellas y puede llevarse el puerto.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service:</source>
        <translation>Si aquí nadie lee braille, quite el servicio:</translation>
    </message>
    <message>
        <source>The adapter gathers what it receives for %1 ms, which could not be lowered: the paddle&apos;s break-in and the echo come late.</source>
        <translation>El adaptador junta lo que recibe durante %1 ms, que no se pudieron reducir: el break-in de las palas y el eco llegan tarde.</translation>
    </message>
    <message>
        <source>Lower it until the adapter is plugged in again:</source>
        <translation>Redúzcalo hasta que se vuelva a enchufar el adaptador:</translation>
    </message>
    <message>
        <source>Many a board with this chip starts anew when its port is opened. Quorvel asks such a keyer again after 2 s.</source>
        <translation>Muchas placas con este chip se reinician al abrirse su puerto. Quorvel pregunta de nuevo a un manipulador así tras 2 s.</translation>
    </message>
    <message>
        <source>A board of this kind leaves its program when a port at 1200 baud is closed, which is a keyer&apos;s speed.</source>
        <translation>Una placa de este tipo abandona su programa cuando se cierra un puerto a 1200 baudios, que es la velocidad de un manipulador.</translation>
    </message>
    <message>
        <source>Pull it out and plug it in again after Quorvel has left it.</source>
        <translation>Desenchúfela y enchúfela otra vez después de que Quorvel la haya dejado.</translation>
    </message>
    <message>
        <source>It is open, and nothing answers.</source>
        <translation>Está abierto, y nada responde.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power? A keyer that another program has set to a speed other than 1200 baud keeps it until it has been without power.</source>
        <translation>¿Es el puerto del manipulador? ¿Tiene alimentación el manipulador? Un manipulador que otro programa puso a una velocidad distinta de 1200 baudios la conserva hasta que se queda sin alimentación.</translation>
    </message>
    <message>
        <source>It is open, and the keyer answers.</source>
        <translation>Está abierto, y el manipulador responde.</translation>
    </message>
    <message>
        <source>Quorvel has it open.</source>
        <translation>Quorvel lo tiene abierto.</translation>
    </message>
    <message>
        <source>Nothing is in the way. Whether a keyer is on it, only asking tells.</source>
        <translation>Nada estorba. Si hay un manipulador, solo se sabe preguntando.</translation>
    </message>
    <message>
        <source>%1, the port chosen last</source>
        <translation>%1, el último puerto elegido</translation>
    </message>
    <message>
        <source>It is plugged in, but no driver has taken it.</source>
        <translation>Está enchufado, pero ningún controlador lo ha tomado.</translation>
    </message>
    <message>
        <source>Have the kernel load its driver. If there is none, the system may have been updated since it was started: start it anew.</source>
        <translation>Haga que el núcleo cargue su controlador. Si no hay ninguno, quizá se actualizó el sistema desde que se arrancó: reinícielo.</translation>
    </message>
    <message>
        <source>A program has taken it away from its driver: %1.</source>
        <translation>Un programa se lo ha quitado a su controlador: %1.</translation>
    </message>
    <message>
        <source>End that program, then plug the adapter in again.</source>
        <translation>Cierre ese programa, y vuelva a enchufar el adaptador.</translation>
    </message>
    <message>
        <source>It was taken away from its driver, it seems by the service for braille displays, brltty, which takes the chip for one of them.</source>
        <translation>Se lo han quitado a su controlador, al parecer el servicio de pantallas braille, brltty, que toma el chip por una de ellas.</translation>
    </message>
    <message>
        <source>If nobody here reads braille, remove the service, then plug the adapter in again:</source>
        <translation>Si aquí nadie lee braille, quite el servicio, y vuelva a enchufar el adaptador:</translation>
    </message>
    <message>
        <source>A program of another user has taken it away from its driver.</source>
        <translation>Un programa de otro usuario se lo ha quitado a su controlador.</translation>
    </message>
    <message>
        <source>See which programs use USB devices directly:</source>
        <translation>Mire qué programas usan directamente dispositivos USB:</translation>
    </message>
    <message>
        <source>%1 in USB socket %2</source>
        <translation>%1 en la toma USB %2</translation>
    </message>
    <message>
        <source>The driver %1 has taken it, which makes no port of it.</source>
        <translation>Lo ha tomado el controlador %1, que no hace de él un puerto.</translation>
    </message>
    <message>
        <source>Have that driver let go of all its devices, then plug the adapter in again:</source>
        <translation>Haga que ese controlador suelte todos sus dispositivos, y vuelva a enchufar el adaptador:</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>No está.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, it has another name now, as after a change of adapter: choose that in File &gt; Preferences…, General.</source>
        <translation>Enchufe el manipulador. Si lo está, ahora tiene otro nombre, como tras un cambio de adaptador: elíjalo en Archivo &gt; Preferencias…, General.</translation>
    </message>
    <message>
        <source>USB adapters</source>
        <translation>Adaptadores USB</translation>
    </message>
    <message>
        <source>No USB serial adapter is there.</source>
        <translation>No hay ningún adaptador USB-serie.</translation>
    </message>
    <message>
        <source>Plug the keyer in. If it is, try another socket and another cable: many a cable charges only. This shows what is plugged in:</source>
        <translation>Enchufe el manipulador. Si lo está, pruebe otra toma y otro cable: muchos cables solo cargan. Esto muestra lo que está enchufado:</translation>
    </message>
    <message>
        <source>This machine</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>udev does not run: what is plugged in now goes unnoticed, and may be opened by root alone.</source>
        <translation>udev no funciona: lo que se enchufe ahora pasa inadvertido, y solo root puede abrirlo.</translation>
    </message>
    <message>
        <source>Start it:</source>
        <translation>Arránquelo:</translation>
    </message>
    <message>
        <source>A keyer answers on it.</source>
        <translation>Un manipulador responde en él.</translation>
    </message>
    <message>
        <source>Something answers on it, but not as a keyer does at 1200 baud.</source>
        <translation>Algo responde en él, pero no como un manipulador a 1200 baudios.</translation>
    </message>
    <message>
        <source>It is another device&apos;s port, or the keyer has been set to another speed by another program: take its power away for a moment.</source>
        <translation>Es el puerto de otro aparato, o bien otro programa puso el manipulador a otra velocidad: quítele la alimentación un momento.</translation>
    </message>
    <message>
        <source>Nothing answers on it.</source>
        <translation>Nada responde en él.</translation>
    </message>
    <message>
        <source>Is it the keyer&apos;s port? Has the keyer power?</source>
        <translation>¿Es el puerto del manipulador? ¿Tiene alimentación el manipulador?</translation>
    </message>
    <message>
        <source>It could not be opened.</source>
        <translation>No se pudo abrir.</translation>
    </message>
    <message>
        <source>Check the ports again.</source>
        <translation>Compruebe los puertos otra vez.</translation>
    </message>
</context>
<context>
    <name>PortReport</name>
    <message>
        <source>OK</source>
        <translation>Bien</translation>
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
        <translation>Mi &amp;indicativo</translation>
    </message>
    <message>
        <source>My call</source>
        <translation>Mi indicativo</translation>
    </message>
    <message>
        <source>Your own call sign: letters, digits and the slash. It is sent for each ` in a message.</source>
        <translation>Su propio indicativo: letras, cifras y la barra. Se transmite por cada ` de un mensaje.</translation>
    </message>
    <message>
        <source>&amp;Serial port</source>
        <translation>&amp;Puerto serie</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Puerto serie</translation>
    </message>
    <message>
        <source>Where the keyer is plugged in. Choosing a port connects at once, also the same one again; leaving the old one takes two seconds.</source>
        <translation>Dónde está enchufado el manipulador. Elegir un puerto conecta al instante, también el mismo otra vez; dejar el anterior tarda dos segundos.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (no presente)</translation>
    </message>
    <message>
        <source>Tune: &amp;let go after</source>
        <translation>Sintonía: so&amp;ltar tras</translation>
    </message>
    <message>
        <source>Tune: let go after</source>
        <translation>Sintonía: soltar tras</translation>
    </message>
    <message>
        <source>How long Tune may key the transmitter down before it lets go by itself. The strip in the main window counts the seconds.</source>
        <translation>Cuánto tiempo puede la sintonía manipular el transmisor antes de soltarlo por sí sola. La franja de la ventana principal cuenta los segundos.</translation>
    </message>
    <message>
        <source>Accept text from loggers</source>
        <translation>Aceptar texto de los logs</translation>
    </message>
    <message>
        <source>Whether logging programs of this machine may send through Quorvel. You and the paddle come before them.</source>
        <translation>Si los programas de log de este equipo pueden transmitir por Quorvel. Usted y las palas van antes.</translation>
    </message>
    <message>
        <source>&amp;Accept text from loggers</source>
        <translation>&amp;Aceptar texto de los logs</translation>
    </message>
    <message>
        <source>Loggers&apos; &amp;port</source>
        <translation>Puerto &amp;de los logs</translation>
    </message>
    <message>
        <source>Loggers&apos; port</source>
        <translation>Puerto de los logs</translation>
    </message>
    <message>
        <source>The UDP port of this machine on which loggers are heard. Nearly all of them send to 6789.</source>
        <translation>El puerto UDP de este equipo en el que se oye a los programas de log. Casi todos envían a 6789.</translation>
    </message>
    <message>
        <source>Characters a&amp;head</source>
        <translation>&amp;Caracteres por adelantado</translation>
    </message>
    <message>
        <source>Characters ahead</source>
        <translation>Caracteres por adelantado</translation>
    </message>
    <message>
        <source>How many characters may be with the keyer before it has echoed the first. 1 is right for a keyer at this machine; over a network, more keep the spaces exact.</source>
        <translation>Cuántos caracteres puede tener el manipulador antes de haber devuelto el primero. 1 es lo correcto para un manipulador en este equipo; por una red, más mantienen exactos los espacios.</translation>
    </message>
</context>
<context>
    <name>PreferencesGeneralViewController</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Changing the serial port...</source>
        <translation>Cambiando el puerto serie...</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>No serial port is present. Plug the keyer in.</source>
        <translation>No hay ningún puerto serie. Enchufe el manipulador.</translation>
    </message>
    <message>
        <source>Connected to %1; the keyer has not answered yet</source>
        <translation>Conectado a %1; el manipulador aún no ha respondido</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
</context>
<context>
    <name>PreferencesMessagesPane</name>
    <message>
        <source>Label of the button</source>
        <translation>Rótulo del botón</translation>
    </message>
    <message>
        <source>Text to send</source>
        <translation>Texto para transmitir</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Mensaje &amp;1</translation>
    </message>
    <message>
        <source>Message 1 label</source>
        <translation>Rótulo del mensaje 1</translation>
    </message>
    <message>
        <source>What the message&apos;s button in the main window says.</source>
        <translation>Lo que dice el botón del mensaje en la ventana principal.</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Mensaje 1</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F1.</source>
        <translation>Lo que transmiten el botón del mensaje y F1.</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Mensaje &amp;2</translation>
    </message>
    <message>
        <source>Message 2 label</source>
        <translation>Rótulo del mensaje 2</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Mensaje 2</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F2.</source>
        <translation>Lo que transmiten el botón del mensaje y F2.</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Mensaje &amp;3</translation>
    </message>
    <message>
        <source>Message 3 label</source>
        <translation>Rótulo del mensaje 3</translation>
    </message>
    <message>
        <source>Message 3</source>
        <translation>Mensaje 3</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F3.</source>
        <translation>Lo que transmiten el botón del mensaje y F3.</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Mensaje &amp;4</translation>
    </message>
    <message>
        <source>Message 4 label</source>
        <translation>Rótulo del mensaje 4</translation>
    </message>
    <message>
        <source>Message 4</source>
        <translation>Mensaje 4</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F4.</source>
        <translation>Lo que transmiten el botón del mensaje y F4.</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Mensaje &amp;5</translation>
    </message>
    <message>
        <source>Message 5 label</source>
        <translation>Rótulo del mensaje 5</translation>
    </message>
    <message>
        <source>Message 5</source>
        <translation>Mensaje 5</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F5.</source>
        <translation>Lo que transmiten el botón del mensaje y F5.</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Mensaje &amp;6</translation>
    </message>
    <message>
        <source>Message 6 label</source>
        <translation>Rótulo del mensaje 6</translation>
    </message>
    <message>
        <source>Message 6</source>
        <translation>Mensaje 6</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F6.</source>
        <translation>Lo que transmiten el botón del mensaje y F6.</translation>
    </message>
    <message>
        <source>Message &amp;7</source>
        <translation>Mensaje &amp;7</translation>
    </message>
    <message>
        <source>Message 7 label</source>
        <translation>Rótulo del mensaje 7</translation>
    </message>
    <message>
        <source>Message 7</source>
        <translation>Mensaje 7</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F7.</source>
        <translation>Lo que transmiten el botón del mensaje y F7.</translation>
    </message>
    <message>
        <source>Message &amp;8</source>
        <translation>Mensaje &amp;8</translation>
    </message>
    <message>
        <source>Message 8 label</source>
        <translation>Rótulo del mensaje 8</translation>
    </message>
    <message>
        <source>Message 8</source>
        <translation>Mensaje 8</translation>
    </message>
    <message>
        <source>What is sent by the message&apos;s button, and by F8.</source>
        <translation>Lo que transmiten el botón del mensaje y F8.</translation>
    </message>
    <message>
        <source>&amp;Beacon interval</source>
        <translation>Intervalo de la &amp;baliza</translation>
    </message>
    <message>
        <source>Beacon interval</source>
        <translation>Intervalo de la baliza</translation>
    </message>
    <message>
        <source>How long the beacon is silent before it sends its message again.</source>
        <translation>Cuánto tiempo calla la baliza antes de transmitir otra vez su mensaje.</translation>
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
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>their call</source>
        <translation>el corresponsal</translation>
    </message>
    <message>
        <source>their call (%1)</source>
        <translation>el corresponsal (%1)</translation>
    </message>
    <message>
        <source>In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. Between % and ^ the keyer sends high-speed CW, { joins the next two letters to one sign, and | is half a dit of space.</source>
        <translation>En un texto, ` representa su indicativo (%1), # el número de serie (%2) y ~ es %3. Entre % y ^ el manipulador transmite CW rápida, { une las dos letras siguientes en un solo signo, y | es medio punto de espacio.</translation>
    </message>
</context>
<context>
    <name>PreferencesWinKeyerPane</name>
    <message>
        <source>Groups of settings</source>
        <translation>Grupos de ajustes</translation>
    </message>
    <message>
        <source>&amp;Keying</source>
        <translation>&amp;Manipulación</translation>
    </message>
    <message>
        <source>&amp;Weighting</source>
        <translation>&amp;Peso</translation>
    </message>
    <message>
        <source>Above 0 elements grow and the gaps after them shrink, for a heavier sound; below 0 it is lighter.</source>
        <translation>Por encima de 0 los elementos crecen y los silencios menguan, con sonido más pesado; por debajo, más ligero.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Dah/dit &amp;ratio</source>
        <translation>&amp;Relación raya/punto</translation>
    </message>
    <message>
        <source>How many dits long a dah is: 3 is the standard, more gives a swing.</source>
        <translation>Cuántos puntos dura una raya: 3 es lo normal, más da un ritmo con swing.</translation>
    </message>
    <message>
        <source> : 1</source>
        <translation> : 1</translation>
    </message>
    <message>
        <source>&amp;Compensation</source>
        <translation>&amp;Compensación</translation>
    </message>
    <message>
        <source>Added to every element and taken from the gap after it, for a transmitter that clips elements.</source>
        <translation>Se suma a cada elemento y se quita del silencio siguiente, para transmisores que recortan elementos.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>First &amp;extension</source>
        <translation>E&amp;xtensión inicial</translation>
    </message>
    <message>
        <source>Added once to the first element after receiving, for a transmitter that swallows its start.</source>
        <translation>Se suma una vez al primer elemento tras recibir, para transmisores que se comen su principio.</translation>
    </message>
    <message>
        <source>&amp;Farnsworth speed</source>
        <translation>Velocidad &amp;Farnsworth</translation>
    </message>
    <message>
        <source>While the speed is below this, letters are keyed at this speed and only the gaps between them are slow.</source>
        <translation>A una velocidad menor, las letras se manipulan a esta y solo los espacios son lentos.</translation>
    </message>
    <message>
        <source> wpm</source>
        <translation> wpm</translation>
    </message>
    <message>
        <source>Leaves six dits between words in place of seven.</source>
        <translation>Deja seis puntos entre palabras en lugar de siete.</translation>
    </message>
    <message>
        <source>C&amp;ontest spacing</source>
        <translation>&amp;Espacio de concurso</translation>
    </message>
    <message>
        <source>Padd&amp;le</source>
        <translation>Pa&amp;las</translation>
    </message>
    <message>
        <source>Key &amp;mode</source>
        <translation>M&amp;odo de llave</translation>
    </message>
    <message>
        <source>A squeeze: iambic B adds an element at its end, A none; ultimatic repeats one; a bug leaves the dahs to you.</source>
        <translation>Con ambas: iámbico B añade un elemento al final, A ninguno; ultimatic repite uno; bug le deja a usted las rayas.</translation>
    </message>
    <message>
        <source>Ultimatic pr&amp;iority</source>
        <translation>Prioridad &amp;Ultimatic</translation>
    </message>
    <message>
        <source>Which paddle wins while both are closed: with Normal, the one closed last. Needs the key mode Ultimatic.</source>
        <translation>Qué pala manda con ambas cerradas: con Normal, la última. Necesita el modo Ultimatic.</translation>
    </message>
    <message>
        <source>Remembers a paddle that is touched while another element is still being keyed.</source>
        <translation>Recuerda una pala tocada mientras aún se manipula otro elemento.</translation>
    </message>
    <message>
        <source>Dit/dah memor&amp;y</source>
        <translation>Memoria de &amp;punto/raya</translation>
    </message>
    <message>
        <source>S&amp;witchpoint</source>
        <translation>Punto de &amp;cambio</translation>
    </message>
    <message>
        <source>Switchpoint</source>
        <translation>Punto de cambio</translation>
    </message>
    <message>
        <source>From when in an element a touch counts for the next. Needs the memory.</source>
        <translation>Desde cuándo un toque cuenta para el elemento siguiente. Necesita la memoria.</translation>
    </message>
    <message>
        <source> % of a dit</source>
        <translation> % de un punto</translation>
    </message>
    <message>
        <source>Dits on the right paddle and dahs on the left, as for a left-handed operator.</source>
        <translation>Puntos en la pala derecha y rayas en la izquierda, como para un operador zurdo.</translation>
    </message>
    <message>
        <source>Swap &amp;paddles</source>
        <translation>Intercambiar pala&amp;s</translation>
    </message>
    <message>
        <source>A pause of more than a dit between letters on the paddle becomes a full letter space.</source>
        <translation>Una pausa de más de un punto entre letras con las palas pasa a ser un espacio entre letras completo.</translation>
    </message>
    <message>
        <source>A&amp;utospace</source>
        <translation>&amp;Espacio automático</translation>
    </message>
    <message>
        <source>The watchdog ends keying after 128 dits or dahs in a row, as from a paddle that is stuck. On here, nothing does.</source>
        <translation>El vigilante corta tras 128 puntos o rayas seguidos, como de una pala atascada. Activado aquí, nada lo hace.</translation>
    </message>
    <message>
        <source>Disable watchdo&amp;g</source>
        <translation>Sin vi&amp;gilante</translation>
    </message>
    <message>
        <source>Echo to the computer</source>
        <translation>Eco hacia el ordenador</translation>
    </message>
    <message>
        <source>The keyer tells the computer what you key on the paddle.</source>
        <translation>El manipulador comunica al ordenador lo que usted manipula con las palas.</translation>
    </message>
    <message>
        <source>Paddle e&amp;cho-back</source>
        <translation>Eco &amp;de las palas</translation>
    </message>
    <message>
        <source>The keyer reports each character that it has keyed. Off, the gaps between letters grow, and PTT may fall in them.</source>
        <translation>El manipulador comunica cada carácter manipulado. Desactivado, los espacios crecen, y el PTT puede caer en ellos.</translation>
    </message>
    <message>
        <source>Serial &amp;echo-back</source>
        <translation>Eco se&amp;rie</translation>
    </message>
    <message>
        <source>Leave serial echo-back on: without it, what the computer sends has longer gaps between its letters.</source>
        <translation>Deje activado el eco serie: sin él, lo que transmite el ordenador lleva espacios más largos entre letras.</translation>
    </message>
    <message>
        <source>&amp;Sidetone and outputs</source>
        <translation>&amp;Tono lateral y salidas</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Tono lateral</translation>
    </message>
    <message>
        <source>The keyer sounds what it keys.</source>
        <translation>El manipulador hace oír lo que manipula.</translation>
    </message>
    <message>
        <source>Sidetone o&amp;n</source>
        <translation>Tono act&amp;ivo</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>&amp;Frecuencia</translation>
    </message>
    <message>
        <source>Pitch of the sidetone, for your ears only: it is not heard on the air. Needs the sidetone on.</source>
        <translation>Frecuencia del tono lateral, solo para sus oídos: no se oye en el aire. Necesita el tono lateral activo.</translation>
    </message>
    <message>
        <source>Sounds what you key on the paddle, and is silent while the computer sends. Needs the sidetone on.</source>
        <translation>Suena lo que manipula con las palas, y calla mientras transmite el ordenador. Necesita el tono lateral activo.</translation>
    </message>
    <message>
        <source>&amp;Only for the paddle</source>
        <translation>&amp;Solo las palas</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Salidas de manipulación</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 1.</source>
        <translation>Manipula el transmisor en la salida 1.</translation>
    </message>
    <message>
        <source>Key output &amp;1</source>
        <translation>Salida &amp;1</translation>
    </message>
    <message>
        <source>Keys the transmitter on output 2.</source>
        <translation>Manipula el transmisor en la salida 2.</translation>
    </message>
    <message>
        <source>Key output &amp;2</source>
        <translation>Salida &amp;2</translation>
    </message>
    <message>
        <source>Both are off: no transmitter is keyed.</source>
        <translation>Ambas desactivadas: no se manipula nada.</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Switches the transmitter over before keying and back after it, in place of break-in by the radio itself.</source>
        <translation>Pone el transmisor en emisión antes de manipular y lo retira después, en lugar del break-in de la propia radio.</translation>
    </message>
    <message>
        <source>PTT &amp;enabled</source>
        <translation>&amp;PTT activo</translation>
    </message>
    <message>
        <source>Lead-&amp;in</source>
        <translation>Ad&amp;elanto</translation>
    </message>
    <message>
        <source>Wait between switching to transmit and the first element, for relays and amplifiers. Needs PTT enabled.</source>
        <translation>Espera entre el paso a emisión y el primer elemento, para relés y amplificadores. Necesita PTT activo.</translation>
    </message>
    <message>
        <source>&amp;Tail</source>
        <translation>&amp;Retardo</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after text from the computer, beyond a letter space. Needs PTT enabled.</source>
        <translation>Cuánto sigue en emisión tras un texto del ordenador, además del espacio de letra. Necesita PTT activo.</translation>
    </message>
    <message>
        <source>Paddle &amp;hang</source>
        <translation>Rete&amp;nción</translation>
    </message>
    <message>
        <source>How long the transmitter stays on after the paddle: short to hear sooner, long to spare the relay. Needs PTT enabled.</source>
        <translation>Cuánto sigue en emisión tras las palas: poco para oír antes, mucho para cuidar el relé. Necesita PTT activo.</translation>
    </message>
    <message>
        <source>word spaces</source>
        <translation>esp. palabra</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Velocidad</translation>
    </message>
    <message>
        <source>Speed pot</source>
        <translation>Potenciómetro de velocidad</translation>
    </message>
    <message>
        <source>Lo&amp;west speed</source>
        <translation>Velocidad mí&amp;nima</translation>
    </message>
    <message>
        <source>Speed with the pot turned fully down.</source>
        <translation>Velocidad con el potenciómetro al mínimo.</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Rango</translation>
    </message>
    <message>
        <source>Speed added with the pot turned fully up. With more than 31 wpm its topmost readings are not shown.</source>
        <translation>Velocidad añadida con el potenciómetro al máximo. Con más de 31 wpm no se muestran sus lecturas más altas.</translation>
    </message>
    <message>
        <source>High-speed CW</source>
        <translation>CW rápida</translation>
    </message>
    <message>
        <source>Ra&amp;te</source>
        <translation>R&amp;itmo</translation>
    </message>
    <message>
        <source>Letters a minute while high-speed CW is on, as for meteor scatter. Holds from when it is next switched on.</source>
        <translation>Letras por minuto en CW rápida, como para dispersión meteórica. Vale desde la próxima vez que se active.</translation>
    </message>
    <message>
        <source>St&amp;andalone</source>
        <translation>&amp;Autónomo</translation>
    </message>
    <message>
        <source>&amp;Command speed</source>
        <translation>Velocidad &amp;de órdenes</translation>
    </message>
    <message>
        <source>Speed at which the keyer, working alone, answers what you set by paddle. Reaches it with Save to keyer.</source>
        <translation>Velocidad a la que el manipulador, solo, responde a las palas. Le llega con «Guardar en el manipulador».</translation>
    </message>
    <message>
        <source>A touch of the paddle breaks off a message that the keyer sends from its memory. Reaches the keyer with Save to keyer.</source>
        <translation>Un toque de las palas corta un mensaje de la memoria. Llega al manipulador con «Guardar en el manipulador».</translation>
    </message>
    <message>
        <source>&amp;Message break</source>
        <translation>Mensaje &amp;interrumpible</translation>
    </message>
    <message>
        <source>Serial numbers that the keyer counts by itself are sent short, as T for 0. Reaches the keyer with Save to keyer.</source>
        <translation>Los números que el manipulador cuenta solo van abreviados, como T por 0. Le llega con «Guardar en el manipulador».</translation>
    </message>
    <message>
        <source>C&amp;ut serial numbers</source>
        <translation>&amp;Números abreviados</translation>
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
        <translation>No se pudo escribir la memoria del manipulador.</translation>
    </message>
    <message>
        <source>Check that the keyer is connected.</source>
        <translation>Compruebe que el manipulador está conectado.</translation>
    </message>
</context>
<context>
    <name>QuorvelDelegate</name>
    <message>
        <source>The WinKeyer using serial port %1 has been unplugged.</source>
        <translation>El WinKeyer que usa el puerto serie %1 se ha desenchufado.</translation>
    </message>
    <message>
        <source>Plug it back in, or choose another serial port in General preferences.</source>
        <translation>Vuelva a enchufarlo, o elija otro puerto serie en las preferencias, en General.</translation>
    </message>
    <message>
        <source>The serial port %1 has been plugged in.</source>
        <translation>Se ha enchufado el puerto serie %1.</translation>
    </message>
    <message>
        <source>Try to use this port to communicate with a WinKeyer?</source>
        <translation>¿Intentar usar este puerto para comunicarse con un WinKeyer?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>sí</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no</translation>
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
        <translation>%1 WPM, del mando</translation>
    </message>
    <message>
        <source>%1; %2 WPM for now</source>
        <translation>%1; %2 WPM por ahora</translation>
    </message>
    <message>
        <source>iambic A</source>
        <translation>iámbico A</translation>
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
        <translation>iámbico B</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>raya</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>the last one closed</source>
        <translation>el último contacto cerrado</translation>
    </message>
    <message>
        <source>%1 Hz, for the paddle only</source>
        <translation>%1 Hz, solo las palas</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>%1 to %2 WPM</source>
        <translation>%1 a %2 WPM</translation>
    </message>
    <message>
        <source>1 and 2</source>
        <translation>1 y 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Knob&apos;s range</source>
        <translation>Margen del mando</translation>
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
        <translation>Raya a punto</translation>
    </message>
    <message>
        <source>%1 to 1</source>
        <translation>%1 a 1</translation>
    </message>
    <message>
        <source>Key compensation</source>
        <translation>Compensación</translation>
    </message>
    <message>
        <source>First extension</source>
        <translation>Extensión inicial</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Espacio entre palabras</translation>
    </message>
    <message>
        <source>%1 dits</source>
        <translation>%1 puntos</translation>
    </message>
    <message>
        <source>Paddle keying</source>
        <translation>Modo de las palas</translation>
    </message>
    <message>
        <source>Ultimatic priority</source>
        <translation>Prioridad ultimatic</translation>
    </message>
    <message>
        <source>Paddle swapped</source>
        <translation>Palas intercambiadas</translation>
    </message>
    <message>
        <source>Paddle memory</source>
        <translation>Memoria de las palas</translation>
    </message>
    <message>
        <source>after %1 dit lengths</source>
        <translation>tras %1 puntos de duración</translation>
    </message>
    <message>
        <source>Paddle watchdog</source>
        <translation>Vigilancia de las palas</translation>
    </message>
    <message>
        <source>Autospace</source>
        <translation>Autoespacio</translation>
    </message>
    <message>
        <source>Paddle echo</source>
        <translation>Eco de las palas</translation>
    </message>
    <message>
        <source>Serial echo</source>
        <translation>Eco serie</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Tono lateral</translation>
    </message>
    <message>
        <source>Key outputs</source>
        <translation>Salidas de manipulación</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Lead-in</source>
        <translation>Adelanto</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Retardo</translation>
    </message>
    <message>
        <source>Hang time</source>
        <translation>Retención de las palas</translation>
    </message>
    <message>
        <source>word space and %1 dits</source>
        <translation>espacio entre palabras y %1 puntos</translation>
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
        <translation>el registro está dañado</translation>
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
        <translation>Texto</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Sent by</source>
        <translation>Transmitido por</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Cómo acabó</translation>
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
        <translation>Tecleado</translation>
    </message>
    <message>
        <source>F%1 %2</source>
        <translation>F%1 %2</translation>
    </message>
    <message>
        <source>Push-button %1 %2</source>
        <translation>Pulsador %1 %2</translation>
    </message>
    <message>
        <source>Beacon</source>
        <translation>Baliza</translation>
    </message>
    <message>
        <source>Logger, port %1</source>
        <translation>Log, puerto %1</translation>
    </message>
    <message>
        <source>Logger %1</source>
        <translation>Log %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Transmitido</translation>
    </message>
    <message>
        <source>Stopped at character %1</source>
        <translation>Parado en el carácter %1</translation>
    </message>
    <message>
        <source>Broken in on at character %1</source>
        <translation>Interrumpido en el carácter %1</translation>
    </message>
    <message>
        <source>Link lost at character %1</source>
        <translation>Enlace perdido en el carácter %1</translation>
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
        <translation>raya %1</translation>
    </message>
    <message>
        <source>space %1</source>
        <translation>espacio %1</translation>
    </message>
    <message>
        <source>letter space %1</source>
        <translation>espacio entre letras %1</translation>
    </message>
    <message>
        <source>word space %1</source>
        <translation>espacio entre palabras %1</translation>
    </message>
    <message>
        <source>pause %1</source>
        <translation>pausa %1</translation>
    </message>
    <message>
        <source>elements and spaces: %1</source>
        <translation>elementos y espacios: %1</translation>
    </message>
    <message>
        <source>Click and drag to measure, or use the arrow keys.</source>
        <translation>Para medir: pulsar y arrastrar, o las flechas.</translation>
    </message>
    <message>
        <source>One cursor is set.</source>
        <translation>Hay un cursor.</translation>
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
        <translation>Lo que transmite no se puede registrar en %1: %2.</translation>
    </message>
    <message>
        <source>The record of what was sent was damaged. It is kept as %1, and a new one has been begun.</source>
        <translation>El registro de lo transmitido estaba dañado. Se conserva como %1 y se ha empezado uno nuevo.</translation>
    </message>
</context>
<context>
    <name>SentWindow</name>
    <message>
        <source>Sent</source>
        <translation>Transmitido</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Words, a call sign, a key, a logger or a date</source>
        <translation>Palabras, un indicativo, una tecla, un log o una fecha</translation>
    </message>
    <message>
        <source>&amp;Keep a record of what is sent, for</source>
        <translation>&amp;Guardar lo que se transmite, durante</translation>
    </message>
    <message>
        <source>How long what is sent is kept</source>
        <translation>Cuánto tiempo se guarda lo transmitido</translation>
    </message>
    <message>
        <source>&amp;Make Message</source>
        <translation>Hacer &amp;mensaje</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Guardar como CS&amp;V…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <translation>%1 transmitidos</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 encontrados</translation>
    </message>
    <message>
        <source>The newest %1 found</source>
        <translation>Los %1 más recientes encontrados</translation>
    </message>
    <message>
        <source>Sends the text of the chosen line, as if it were typed</source>
        <translation>Transmite el texto de la línea elegida, como si se tecleara</translation>
    </message>
    <message>
        <source>No keyer is connected</source>
        <translation>No hay ningún manipulador conectado</translation>
    </message>
    <message>
        <source>Puts the text of the chosen line under a message key</source>
        <translation>Pone el texto de la línea elegida en una tecla de mensaje</translation>
    </message>
    <message>
        <source>F&amp;%1  %2</source>
        <translation>F&amp;%1  %2</translation>
    </message>
    <message>
        <source>Replace the text of F%1?</source>
        <translation>¿Reemplazar el texto de F%1?</translation>
    </message>
    <message>
        <source>It is “%1” now, and will be “%2”.</source>
        <translation>Ahora es «%1» y será «%2».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Guardar como CSV</translation>
    </message>
    <message>
        <source>Values separated by commas (*.csv)</source>
        <translation>Valores separados por comas (*.csv)</translation>
    </message>
    <message>
        <source>sent.csv</source>
        <translation>transmitido.csv</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>No guardado: %1</translation>
    </message>
    <message>
        <source>Send Again</source>
        <translation>Transmitir de nuevo</translation>
    </message>
    <message>
        <source>Saved as %1, without %2 that could not be read</source>
        <translation>Guardado como %1, sin %2 que no se pudieron leer</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Off</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Iambic B</source>
        <translation>Iámbico B</translation>
    </message>
    <message>
        <source>Iambic A</source>
        <translation>Iámbico A</translation>
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
        <translation>Normal</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Rayas</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Exchange</source>
        <translation>Intercambio</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Acuse</translation>
    </message>
    <message>
        <source>My Call</source>
        <translation>Mi indicativo</translation>
    </message>
    <message>
        <source>Their Call</source>
        <translation>Su indicativo</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Otra vez</translation>
    </message>
    <message>
        <source>%1 lpm</source>
        <translation>%1 lpm</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mes</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 año</translation>
    </message>
    <message>
        <source>5 years</source>
        <translation>5 años</translation>
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
        <translation>No tiene permiso para leer %1. El archivo quedó como está, y lo que elija ahora se guarda en %2.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Your settings could not be read.</source>
        <translation>No se pudieron leer sus ajustes.</translation>
    </message>
    <message>
        <source>Your settings cannot be stored.</source>
        <translation>No se pueden guardar sus ajustes.</translation>
    </message>
    <message>
        <source>A quotation mark in %1 is not closed.</source>
        <translation>Unas comillas de %1 no están cerradas.</translation>
    </message>
    <message>
        <source>%1 is a pipe or a device.</source>
        <translation>%1 es una tubería o un dispositivo.</translation>
    </message>
    <message>
        <source>%1 is much too large to be settings.</source>
        <translation>%1 es demasiado grande para ser de ajustes.</translation>
    </message>
    <message>
        <source>There is something in %1 that is no setting.</source>
        <translation>Hay algo en %1 que no es un ajuste.</translation>
    </message>
    <message>
        <source>The file could not be put aside. It was left as it is, and what you choose now is stored in %1.</source>
        <translation>No se pudo apartar el archivo. Quedó como está, y lo que elija ahora se guarda en %1.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. The lines that could be read are in use.</source>
        <translation>No se pierde nada: ahora es %1. Se usan las líneas que se pudieron leer.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Quorvel starts with the settings of a new installation.</source>
        <translation>No se pierde nada: ahora es %1. Quorvel empieza con los ajustes de una instalación nueva.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. What is not stored holds until you quit, and is lost then unless it can be stored before: %3.</source>
        <translation>No se puede escribir %1: %2. Lo que no está guardado vale hasta que salga, y se pierde entonces si no se puede guardar antes: %3.</translation>
    </message>
    <message>
        <source>Nothing of it is lost: it is now %1. Of what cannot be read, the last settings hold, and have been stored anew.</source>
        <translation>No se pierde nada: ahora es %1. De lo que no se puede leer valen los últimos ajustes, que se han guardado de nuevo.</translation>
    </message>
    <message>
        <source>Your settings were damaged by another program.</source>
        <translation>Otro programa dañó sus ajustes.</translation>
    </message>
    <message>
        <source>%1 … (%2 in all)</source>
        <translation>%1 … (%2 en total)</translation>
    </message>
</context>
<context>
    <name>SleepNotice</name>
    <message>
        <source>The computer went to sleep, which stopped the sending.</source>
        <translation>El equipo se durmió, lo que detuvo la transmisión.</translation>
    </message>
    <message>
        <source>What you entered meanwhile waits: take Pause off to send it, or press Esc to drop it.</source>
        <translation>Lo que introdujo entretanto espera: quite la pausa para transmitirlo, o pulse Esc para descartarlo.</translation>
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
        <translation>fijada aquí</translation>
    </message>
    <message>
        <source>knob</source>
        <translation>mando</translation>
    </message>
    <message>
        <source>%1, set here</source>
        <translation>%1, fijada aquí</translation>
    </message>
</context>
<context>
    <name>SpokenChanges</name>
    <message>
        <source>%1: on</source>
        <translation>%1: activado</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: desactivado</translation>
    </message>
    <message>
        <source>Break-in: what waited was dropped</source>
        <translation>Break-in: lo que esperaba se ha descartado</translation>
    </message>
</context>
<context>
    <name>StandaloneMessages</name>
    <message>
        <source>Message &amp;1</source>
        <translation>Mensaje &amp;1</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 1. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 1. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 1</source>
        <translation>Transmitir 1</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Mensaje &amp;2</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 2. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 2. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 2</source>
        <translation>Transmitir 2</translation>
    </message>
    <message>
        <source>Message &amp;3</source>
        <translation>Mensaje &amp;3</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 3. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 3. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 3</source>
        <translation>Transmitir 3</translation>
    </message>
    <message>
        <source>Message &amp;4</source>
        <translation>Mensaje &amp;4</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 4. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 4. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 4</source>
        <translation>Transmitir 4</translation>
    </message>
    <message>
        <source>Message &amp;5</source>
        <translation>Mensaje &amp;5</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 5. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 5. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 5</source>
        <translation>Transmitir 5</translation>
    </message>
    <message>
        <source>Message &amp;6</source>
        <translation>Mensaje &amp;6</translation>
    </message>
    <message>
        <source>What the keyer sends from its own memory as message 6. Tokens are not filled in.</source>
        <translation>Lo que el manipulador transmite de su propia memoria como mensaje 6. Los símbolos no se sustituyen.</translation>
    </message>
    <message>
        <source>Send 6</source>
        <translation>Transmitir 6</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory</source>
        <translation>Cargando la memoria del manipulador</translation>
    </message>
    <message>
        <source>The serial line takes two and a half seconds for the whole memory.</source>
        <translation>La línea serie tarda dos segundos y medio para toda la memoria.</translation>
    </message>
    <message>
        <source>Loading the keyer&apos;s memory: %p%</source>
        <translation>Cargando la memoria del manipulador: %p%</translation>
    </message>
    <message>
        <source>Sa&amp;ve to keyer</source>
        <translation>&amp;Guardar en el manipulador</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Cannot hold %1</source>
        <translation>No puede contener %1</translation>
    </message>
    <message>
        <source>Does not fit</source>
        <translation>No cabe</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Termina en %1</translation>
    </message>
    <message>
        <source>No Morse for %1</source>
        <translation>Sin morse para %1</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory has no place for %1. Nothing can be saved while it is in this message.</source>
        <translation>La memoria del manipulador no tiene sitio para %1. No se puede guardar nada mientras esté en este mensaje.</translation>
    </message>
    <message>
        <source>The memory has no room for this message, which is left out when you save. Characters too many: %1.</source>
        <translation>La memoria no tiene espacio para este mensaje, que se omite al guardar. Caracteres de más: %1.</translation>
    </message>
    <message>
        <source>The keyer takes %1 for the end of the message: it sends nothing behind it, and the sign itself is cut short.</source>
        <translation>El manipulador toma %1 por el fin del mensaje: no transmite nada detrás, y el propio signo queda cortado.</translation>
    </message>
    <message>
        <source>%1 has no Morse code: the keyer sends nothing in its place. Tokens are not filled in here.</source>
        <translation>%1 no tiene código morse: el manipulador no transmite nada en su lugar. Aquí no se sustituyen los símbolos.</translation>
    </message>
    <message>
        <source>Message %1 holds %2, which has no Morse code. Take it out and save again.</source>
        <translation>El mensaje %1 contiene %2, que no tiene código morse. Quítelo y guarde de nuevo.</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Mensaje %1: %2</translation>
    </message>
    <message>
        <source>Connect the keyer to save and to send.</source>
        <translation>Conecte el manipulador para guardar y para transmitir.</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded.</source>
        <translation>Se está cargando la memoria del manipulador.</translation>
    </message>
    <message>
        <source>Writes these messages and all settings into the keyer&apos;s own memory, for work without a computer. It takes two and a half seconds.</source>
        <translation>Escribe estos mensajes y todos los ajustes en la memoria del manipulador, para trabajar sin ordenador. Tarda dos segundos y medio.</translation>
    </message>
    <message>
        <source>Has the keyer send this message as it was last saved.</source>
        <translation>Hace que el manipulador transmita este mensaje tal como se guardó por última vez.</translation>
    </message>
</context>
<context>
    <name>TuneSwitch</name>
    <message>
        <source>Tune needs a keyer, and none is connected</source>
        <translation>La sintonía necesita un manipulador, y no hay ninguno conectado</translation>
    </message>
    <message>
        <source>The keyer&apos;s memory is being loaded</source>
        <translation>Se está cargando la memoria del manipulador</translation>
    </message>
</context>
<context>
    <name>TuneWarning</name>
    <message>
        <source>%1 s, lets go in %2 s</source>
        <translation>%1 s, suelta en %2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Tune is off</source>
        <translation>La sintonía está desactivada</translation>
    </message>
</context>
<context>
    <name>TypingWatch</name>
    <message>
        <source>%1 – takes keys when you have stopped typing</source>
        <translation>%1 – admite teclas cuando deje de teclear</translation>
    </message>
</context>
<context>
    <name>VirtualKeyer</name>
    <message>
        <source>the system has no watches left; openings of the port are noticed late</source>
        <translation>al sistema no le quedan vigilancias; se notará tarde que se abre el puerto</translation>
    </message>
    <message>
        <source>Plugged in as %1 (%2)</source>
        <translation>Enchufado como %1 (%2)</translation>
    </message>
    <message>
        <source>a running virtual keyer already holds the name %1</source>
        <translation>un manipulador virtual en marcha ya tiene el nombre %1</translation>
    </message>
    <message>
        <source>the directory %1 belongs to another user</source>
        <translation>el directorio %1 pertenece a otro usuario</translation>
    </message>
    <message>
        <source>%1 is in the way and no virtual keyer made it</source>
        <translation>%1 estorba, y no lo hizo ningún manipulador virtual</translation>
    </message>
    <message>
        <source>cannot write the registers %1: %2</source>
        <translation>no se pueden escribir los registros %1: %2</translation>
    </message>
    <message>
        <source>cannot write the transcript %1</source>
        <translation>no se puede escribir la transcripción %1</translation>
    </message>
    <message>
        <source>a running virtual keyer (process %1) already holds the name %2</source>
        <translation>un manipulador virtual en marcha (proceso %1) ya tiene el nombre %2</translation>
    </message>
    <message>
        <source>The virtual keyer does not run: %1</source>
        <translation>El manipulador virtual no funciona: %1</translation>
    </message>
    <message>
        <source>cannot read the script %1: %2</source>
        <translation>no se puede leer el guion %1: %2</translation>
    </message>
    <message>
        <source>a profile that --help lists</source>
        <translation>un perfil que --help enumera</translation>
    </message>
    <message>
        <source>%1:%2: &quot;%3&quot; is not understood; possible is: %4</source>
        <translation>%1:%2: «%3» no se entiende; es posible: %4</translation>
    </message>
    <message>
        <source>%1:%2: expected %3, but it is %4</source>
        <translation>%1:%2: se esperaba %3, pero es %4</translation>
    </message>
    <message>
        <source>%1:%2: not done before the end</source>
        <translation>%1:%2: no se hizo antes del final</translation>
    </message>
    <message>
        <source>No window can be shown. What is keyed is printed here, until Ctrl+C.</source>
        <translation>No se puede mostrar ninguna ventana. Lo que se manipula se imprime aquí, hasta Ctrl+C.</translation>
    </message>
    <message>
        <source>cannot write the sound %1</source>
        <translation>no se puede escribir el sonido %1</translation>
    </message>
</context>
<context>
    <name>VirtualKeyerCommandLine</name>
    <message>
        <source>The kind of keyer, or several of them, separated by commas:</source>
        <translation>El tipo de manipulador, o varios, separados por comas:</translation>
    </message>
    <message>
        <source>Writes a line for every event, with its time in ms, to %1.</source>
        <translation>Escribe una línea por suceso, con su tiempo en ms, en %1.</translation>
    </message>
    <message>
        <source>Keeps %1 up to date with the keyer&apos;s registers, and the settings and messages of its memory: lines of a name and a value. Each change replaces the file as a whole.</source>
        <translation>Mantiene %1 al día con los registros del manipulador y los ajustes y mensajes de su memoria: líneas de un nombre y un valor. Cada cambio sustituye el archivo entero.</translation>
    </message>
    <message>
        <source>Where the speed pot stands, %1 to %2 words per minute, %3 by default. It counts within the range that the host has set, 10 to 25 at power-up.</source>
        <translation>Dónde está el potenciómetro de velocidad, de %1 a %2 palabras por minuto, %3 si no se indica. Cuenta dentro del intervalo que fija el anfitrión, 10 a 25 al encender.</translation>
    </message>
    <message>
        <source>The serial port&apos;s name, %1 by default. The port is a link in quorvel/ports in the runtime directory.</source>
        <translation>El nombre del puerto serie, %1 si no se indica. El puerto es un enlace en quorvel/ports del directorio de ejecución.</translation>
    </message>
    <message>
        <source>Unknown profile &apos;%1&apos;; --help lists them.</source>
        <translation>Perfil &apos;%1&apos; desconocido; --help los enumera.</translation>
    </message>
    <message>
        <source>The speed is %1 to %2 words per minute, not &apos;%3&apos;.</source>
        <translation>La velocidad es de %1 a %2 palabras por minuto, no &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot name a serial port: a name has 1 to 200 characters, no slash, and does not begin with a dot.</source>
        <translation>&apos;%1&apos; no puede ser nombre de un puerto serie: un nombre tiene de 1 a 200 caracteres, sin barra, y no empieza por un punto.</translation>
    </message>
    <message>
        <source>The transcript needs a file name.</source>
        <translation>La transcripción necesita un nombre de archivo.</translation>
    </message>
    <message>
        <source>The registers need a file name.</source>
        <translation>Los registros necesitan un nombre de archivo.</translation>
    </message>
    <message>
        <source>A Morse keyer made of software: it plugs itself in as a serial port, obeys the host
program that opens it, and prints what it keys to standard output.</source>
        <translation>Un manipulador morse hecho de software: se enchufa solo como puerto serie, obedece al programa
que lo abre, y escribe lo que manipula en la salida estándar.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Standard input works the paddle: &quot;.&quot; and &quot;-&quot; each close a contact, and anything else opens both.</source>
        <translation>La entrada estándar maneja las palas: «.» y «-» cierran un contacto cada uno, y todo lo demás abre los dos.</translation>
    </message>
    <message>
        <source>Shows no window.</source>
        <translation>No muestra ninguna ventana.</translation>
    </message>
    <message>
        <source>Saves the sidetone to %1, a WAV file.</source>
        <translation>Guarda el tono lateral en %1, un archivo WAV.</translation>
    </message>
    <message>
        <source>Works the keyer as %1 says, &quot;-&quot; for standard input, and ends with it; the exit status is 3 if what it expects did not happen. Lines of it are: %2</source>
        <translation>Maneja el manipulador como dice %1, «-» para la entrada estándar, y termina con él; el estado de salida es 3 si no ocurrió lo que espera. Sus líneas son: %2</translation>
    </message>
    <message>
        <source>The script&apos;s time passes as fast as it can, and no port is plugged in.</source>
        <translation>El tiempo del guion pasa tan deprisa como puede, y no se enchufa ningún puerto.</translation>
    </message>
    <message>
        <source>The script needs a file name.</source>
        <translation>El guion necesita un nombre de archivo.</translation>
    </message>
    <message>
        <source>Only a script can be fast.</source>
        <translation>Solo un guion puede ser rápido.</translation>
    </message>
    <message>
        <source>Standard input is either the script or the paddle.</source>
        <translation>La entrada estándar es o el guion o las palas.</translation>
    </message>
    <message>
        <source>The sound needs a file name.</source>
        <translation>El sonido necesita un nombre de archivo.</translation>
    </message>
    <message>
        <source>SHARE</source>
        <translation>PARTE</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <translation>SEGUNDOS</translation>
    </message>
    <message>
        <source>What is wrong with the line, or several such things, separated by commas; a number may be left out:</source>
        <translation>Lo que va mal en la línea, una o varias cosas, separadas por comas; un número puede omitirse:</translation>
    </message>
    <message>
        <source>Has chance do the same to the line as it did with this number, 1 by default.</source>
        <translation>Hace que el azar trate la línea igual que con este número, 1 por omisión.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no trouble; --help lists them.</source>
        <translation>«%1» no es ningún fallo de línea; --help los enumera.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no seed: a whole number, not below 0.</source>
        <translation>«%1» no es una semilla: un número entero, no menor que 0.</translation>
    </message>
</context>
<context>
    <name>WaitingLabel</name>
    <message>
        <source>%1 waiting</source>
        <translation>%1 en espera</translation>
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
        <translation>Se abandona y se cierra la conexión con el manipulador.</translation>
    </message>
    <message>
        <source>See AMSerialErrors.h</source>
        <translation>Véase AMSerialErrors.h</translation>
    </message>
    <message>
        <source>There is no port defined for the WinKeyer.</source>
        <translation>No hay ningún puerto definido para el WinKeyer.</translation>
    </message>
    <message>
        <source>Choose a serial port other than None in the General Preferences pane. Or, plug in a cable to your WinKeyer USB.</source>
        <translation>Elija un puerto serie distinto de Ninguno en las preferencias, en General. O bien enchufe el cable de su WinKeyer USB.</translation>
    </message>
    <message>
        <source>The WinKeyer serial port %1 is not available.</source>
        <translation>El puerto serie %1 del WinKeyer no está disponible.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer is connected to the selected port, and that no other application is using that port. Also confirm that the FDTI driver is installed. Obtain the appropriate Mac OS X driver at https://ftdichip.com/drivers/.</source>
        <translation>Compruebe que el WinKeyer está conectado al puerto elegido y que ninguna otra aplicación usa ese puerto. Compruebe también que el controlador FDTI está instalado. El controlador apropiado para Mac OS X se obtiene en https://ftdichip.com/drivers/.</translation>
    </message>
    <message>
        <source>Unable to open the WinKeyer serial port %1.</source>
        <translation>No se puede abrir el puerto serie %1 del WinKeyer.</translation>
    </message>
    <message>
        <source>Confirm that the USB-Serial device is connected and active.</source>
        <translation>Compruebe que el dispositivo USB-serie está conectado y activo.</translation>
    </message>
    <message>
        <source>WinKeyer sync failed with AMSerial code: </source>
        <translation>WinKeyer: la sincronización falló con el código AMSerial: </translation>
    </message>
    <message>
        <source>WinKeyer echo test Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: la orden Admin de prueba de eco falló con el código AMSerial: </translation>
    </message>
    <message>
        <source>WinKeyer Host Open Admin command failed.</source>
        <translation>WinKeyer: la orden Admin Host Open falló.</translation>
    </message>
    <message>
        <source>WinKeyer returned unsupported version: %1.</source>
        <translation>El WinKeyer devolvió una versión no admitida: %1.</translation>
    </message>
    <message>
        <source>Confirm that the WinKeyer version is between 20 and 23.</source>
        <translation>Compruebe que la versión del WinKeyer está entre 20 y 23.</translation>
    </message>
    <message>
        <source>WinKeyer Set WinKeyer 2 Mode Admin command failed.</source>
        <translation>WinKeyer: la orden Admin Set WinKeyer 2 Mode falló.</translation>
    </message>
    <message>
        <source>WinKeyer Host Close Admin command failed with AMSerial code: </source>
        <translation>WinKeyer: la orden Admin Host Close falló con el código AMSerial: </translation>
    </message>
</context>
<context>
    <name>WireWords</name>
    <message>
        <source>space</source>
        <translation>espacio</translation>
    </message>
    <message>
        <source>Leave the speed to the knob</source>
        <translation>Dejar la velocidad al mando</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Key up</source>
        <translation>Manipulador arriba</translation>
    </message>
    <message>
        <source>In the buffer: PTT off</source>
        <translation>En el búfer: PTT apagado</translation>
    </message>
    <message>
        <source>No Farnsworth</source>
        <translation>Sin Farnsworth</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>dit</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>dah</source>
        <translation>raya</translation>
    </message>
    <message>
        <source>both</source>
        <translation>ambas</translation>
    </message>
    <message>
        <source>Buffer: overwrite at %1</source>
        <translation>Búfer: sobrescribir desde %1</translation>
    </message>
    <message>
        <source>Buffer: append at %1</source>
        <translation>Búfer: añadir desde %1</translation>
    </message>
    <message>
        <source>Buffer: insert %1 nulls</source>
        <translation>Búfer: insertar %1 nulos</translation>
    </message>
    <message>
        <source>Buffer: move %1, unknown</source>
        <translation>Búfer: movimiento %1, desconocido</translation>
    </message>
    <message>
        <source>In the buffer: high speed, %1 WPM</source>
        <translation>En el búfer: alta velocidad, %1 WPM</translation>
    </message>
    <message>
        <source>Set the tone: %1</source>
        <translation>Fijar el tono: %1</translation>
    </message>
    <message>
        <source>Set speed %1 WPM</source>
        <translation>Fijar la velocidad: %1 WPM</translation>
    </message>
    <message>
        <source>Set weighting %1 %</source>
        <translation>Fijar el peso: %1 %</translation>
    </message>
    <message>
        <source>Set PTT lead/tail %1, %2 ms</source>
        <translation>Fijar adelanto/retardo del PTT: %1, %2 ms</translation>
    </message>
    <message>
        <source>Set the knob&apos;s range %1 to %2 WPM</source>
        <translation>Fijar el margen del mando: %1 a %2 WPM</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Ask for the knob</source>
        <translation>Preguntar por el mando</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Set the pins: %1</source>
        <translation>Fijar los pines: %1</translation>
    </message>
    <message>
        <source>Clear buffer</source>
        <translation>Vaciar el búfer</translation>
    </message>
    <message>
        <source>Key down</source>
        <translation>Manipulador abajo</translation>
    </message>
    <message>
        <source>Set high speed %1 WPM</source>
        <translation>Fijar alta velocidad: %1 WPM</translation>
    </message>
    <message>
        <source>Set Farnsworth %1 WPM</source>
        <translation>Fijar Farnsworth: %1 WPM</translation>
    </message>
    <message>
        <source>Set the mode: %1</source>
        <translation>Fijar el modo: %1</translation>
    </message>
    <message>
        <source>Load defaults: %1</source>
        <translation>Cargar los valores iniciales: %1</translation>
    </message>
    <message>
        <source>Set first extension %1 ms</source>
        <translation>Fijar la extensión inicial: %1 ms</translation>
    </message>
    <message>
        <source>Set key compensation %1 ms</source>
        <translation>Fijar la compensación: %1 ms</translation>
    </message>
    <message>
        <source>Set paddle memory %1 (50: a dit)</source>
        <translation>Fijar la memoria de las palas: %1 (50: un punto)</translation>
    </message>
    <message>
        <source>Null</source>
        <translation>Nulo</translation>
    </message>
    <message>
        <source>Paddle by the host: %1</source>
        <translation>Palas por el host: %1</translation>
    </message>
    <message>
        <source>Ask for the status</source>
        <translation>Preguntar por el estado</translation>
    </message>
    <message>
        <source>Buffer: to its beginning</source>
        <translation>Búfer: al principio</translation>
    </message>
    <message>
        <source>Set dah to dit %1 (50: 3 to 1)</source>
        <translation>Fijar raya a punto: %1 (50: 3 a 1)</translation>
    </message>
    <message>
        <source>In the buffer: PTT on</source>
        <translation>En el búfer: PTT encendido</translation>
    </message>
    <message>
        <source>In the buffer: key down, %1 s</source>
        <translation>En el búfer: manipulador abajo, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: wait, %1 s</source>
        <translation>En el búfer: espera, %1 s</translation>
    </message>
    <message>
        <source>In the buffer: merge %1</source>
        <translation>En el búfer: unir %1</translation>
    </message>
    <message>
        <source>In the buffer: %1 WPM</source>
        <translation>En el búfer: %1 WPM</translation>
    </message>
    <message>
        <source>In the buffer: key output %1</source>
        <translation>En el búfer: salida de manipulación %1</translation>
    </message>
    <message>
        <source>In the buffer: the speed that was set</source>
        <translation>En el búfer: la velocidad fijada</translation>
    </message>
    <message>
        <source>In the buffer: null</source>
        <translation>En el búfer: nulo</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Calibrar</translation>
    </message>
    <message>
        <source>Reset the keyer</source>
        <translation>Reiniciar el manipulador</translation>
    </message>
    <message>
        <source>Open the keyer</source>
        <translation>Abrir el manipulador</translation>
    </message>
    <message>
        <source>Close the keyer</source>
        <translation>Cerrar el manipulador</translation>
    </message>
    <message>
        <source>Echo test %1</source>
        <translation>Prueba de eco %1</translation>
    </message>
    <message>
        <source>Ask for the paddle A/D</source>
        <translation>Preguntar por el A/D de las palas</translation>
    </message>
    <message>
        <source>Ask for the speed A/D</source>
        <translation>Preguntar por el A/D de la velocidad</translation>
    </message>
    <message>
        <source>Ask for all values</source>
        <translation>Preguntar por todos los valores</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Depuración</translation>
    </message>
    <message>
        <source>Ask for the calibration</source>
        <translation>Preguntar por la calibración</translation>
    </message>
    <message>
        <source>Version 1 status</source>
        <translation>Estado de versión 1</translation>
    </message>
    <message>
        <source>Version 2 status</source>
        <translation>Estado de versión 2</translation>
    </message>
    <message>
        <source>Ask for the memory</source>
        <translation>Preguntar por la memoria</translation>
    </message>
    <message>
        <source>Load the memory</source>
        <translation>Cargar la memoria</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Reproducir el mensaje %1</translation>
    </message>
    <message>
        <source>Load X1MODE %1</source>
        <translation>Cargar X1MODE %1</translation>
    </message>
    <message>
        <source>Line at 9600 baud</source>
        <translation>Línea a 9600 baudios</translation>
    </message>
    <message>
        <source>Line at 1200 baud</source>
        <translation>Línea a 1200 baudios</translation>
    </message>
    <message>
        <source>Admin command %1, unknown</source>
        <translation>Orden de administración %1, desconocida</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>texto %1</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>espera</translation>
    </message>
    <message>
        <source>key down</source>
        <translation>manipulador abajo</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
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
        <translation>estado: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>push-buttons: %1</source>
        <translation>pulsadores: %1</translation>
    </message>
    <message>
        <source>open, version %1</source>
        <translation>abierto, versión %1</translation>
    </message>
    <message>
        <source>echo test %1</source>
        <translation>prueba de eco %1</translation>
    </message>
    <message>
        <source>values: %1</source>
        <translation>valores: %1</translation>
    </message>
    <message>
        <source>memory, %1 bytes</source>
        <translation>memoria, %1 bytes</translation>
    </message>
    <message>
        <source>answer %1</source>
        <translation>respuesta %1</translation>
    </message>
    <message>
        <source>discarded by the keyer</source>
        <translation>descartado por el manipulador</translation>
    </message>
    <message>
        <source>lost, the keyer is starting</source>
        <translation>perdido, el manipulador está arrancando</translation>
    </message>
    <message>
        <source>unfinished command</source>
        <translation>orden incompleta</translation>
    </message>
    <message>
        <source>the keyer starts anew</source>
        <translation>el manipulador arranca de nuevo</translation>
    </message>
    <message>
        <source>echo %1</source>
        <translation>eco %1</translation>
    </message>
    <message>
        <source>knob: %1 WPM</source>
        <translation>mando: %1 WPM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quorvel is running already, and does not answer. End it, then start it again.</source>
        <translation>Quorvel ya está en marcha y no responde. Ciérrelo y arránquelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KeyerWindow</name>
    <message>
        <source>Virtual keyer</source>
        <translation>Manipulador virtual</translation>
    </message>
    <message>
        <source>Plugged in as %1</source>
        <translation>Enchufado como %1</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Enchufado</translation>
    </message>
    <message>
        <source>Pulls the adapter and plugs it in again. Without it the keyer has no power, and forgets its host.</source>
        <translation>Desenchufa el adaptador y lo enchufa de nuevo. Sin él, el manipulador no tiene corriente y olvida su host.</translation>
    </message>
    <message>
        <source>Speed knob</source>
        <translation>Mando de velocidad</translation>
    </message>
    <message>
        <source>Counts within the range that the host has set, and only while the host leaves the speed to it.</source>
        <translation>Cuenta dentro del margen que ha fijado el host, y solo mientras este le deje la velocidad.</translation>
    </message>
    <message>
        <source>%1 WPM</source>
        <translation>%1 WPM</translation>
    </message>
    <message>
        <source>Push-buttons</source>
        <translation>Pulsadores</translation>
    </message>
    <message>
        <source>The host hears of them once it has asked for version 2 status.</source>
        <translation>El host se entera de ellos una vez que ha pedido el estado de versión 2.</translation>
    </message>
    <message>
        <source>Push-button %1</source>
        <translation>Pulsador %1</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Kind of keyer</source>
        <translation>Tipo de manipulador</translation>
    </message>
    <message>
        <source>Keyed text</source>
        <translation>Texto manipulado</translation>
    </message>
    <message>
        <source>What is keyed, by the host or the paddle, is read back here from the key line.</source>
        <translation>Lo que manipulan el host o las palas se lee aquí de la línea de manipulación.</translation>
    </message>
    <message>
        <source>Record a script</source>
        <translation>Grabar un guion</translation>
    </message>
    <message>
        <source>Writes down what is done here, for --script to do again: press once more to save it.</source>
        <translation>Anota lo que se hace aquí, para que --script lo repita: pulse otra vez para guardarlo.</translation>
    </message>
    <message>
        <source>Save the script</source>
        <translation>Guardar el guion</translation>
    </message>
    <message>
        <source>Sidetone</source>
        <translation>Tono lateral</translation>
    </message>
    <message>
        <source>How loud this machine plays what is keyed; the host sets the pitch.</source>
        <translation>Con qué volumen reproduce esta máquina lo que se manipula; el tono lo fija el host.</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>No sound device: it is silent.</source>
        <translation>No hay dispositivo de sonido: está mudo.</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Osciloscopio</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>Registro de línea</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::KindList</name>
    <message>
        <source>Kinds of keyer</source>
        <translation>Tipos de manipulador</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::Lamp</name>
    <message>
        <source>%1: on</source>
        <translation>%1: encendido</translation>
    </message>
    <message>
        <source>%1: off</source>
        <translation>%1: apagado</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::LampRow</name>
    <message>
        <source>Key</source>
        <translation>Manipulador</translation>
    </message>
    <message>
        <source>PTT</source>
        <translation>PTT</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
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
        <translation>Espera</translation>
    </message>
    <message>
        <source>The transmitter would be keyed. Nothing here is on the air.</source>
        <translation>El transmisor se manipularía. Nada de aquí sale al aire.</translation>
    </message>
    <message>
        <source>The transmitter would be switched on.</source>
        <translation>El transmisor se encendería.</translation>
    </message>
    <message>
        <source>The host&apos;s text, the paddle or the tune command keys.</source>
        <translation>Manipulan el texto del host, las palas o la orden de sintonía.</translation>
    </message>
    <message>
        <source>The paddle has the key, and the host&apos;s text has gone.</source>
        <translation>Las palas tienen el manipulador, y el texto del host se ha perdido.</translation>
    </message>
    <message>
        <source>The buffer is nearly full; the host has to wait.</source>
        <translation>El búfer está casi lleno; el host tiene que esperar.</translation>
    </message>
    <message>
        <source>A wait or a key-down of the host&apos;s, with a time of its own, or a tune.</source>
        <translation>Una espera o una pulsación del host con su propia duración, o una sintonía.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::MessageList</name>
    <message>
        <source>Play %1</source>
        <translation>Reproducir %1</translation>
    </message>
    <message>
        <source>Play message %1</source>
        <translation>Reproducir el mensaje %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>Message %1: %2</source>
        <translation>Mensaje %1: %2</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PaddlePanel</name>
    <message>
        <source>Paddle</source>
        <translation>Palas</translation>
    </message>
    <message>
        <source>Dit (F)</source>
        <translation>Punto (F)</translation>
    </message>
    <message>
        <source>Dah (J)</source>
        <translation>Raya (J)</translation>
    </message>
    <message>
        <source>Hold a button, or the keys F and J; both at once for a squeeze.</source>
        <translation>Mantenga un botón, o las teclas F y J; ambos a la vez para apretar las dos palas.</translation>
    </message>
    <message>
        <source>Dit paddle</source>
        <translation>Pala de puntos</translation>
    </message>
    <message>
        <source>Dah paddle</source>
        <translation>Pala de rayas</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::PracticePage</name>
    <message>
        <source>Text to be sent</source>
        <translation>Texto que se ha de enviar</translation>
    </message>
    <message>
        <source>Letters that work the paddle are letters while this has the keyboard; Enter begins, and hands them back.</source>
        <translation>Las letras que mueven las palas son letras mientras este campo tiene el teclado; Intro empieza y las devuelve.</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>X for A: X was sent instead of A. No A: A was left out. And X: X was one too many.</source>
        <translation>X por A: se envió X en vez de A. Sin A: se omitió A. Y X: X sobraba.</translation>
    </message>
    <message>
        <source>Lengths in dits</source>
        <translation>Duraciones en puntos</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviados</translation>
    </message>
    <message>
        <source>Ideal</source>
        <translation>Ideal</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>From half to 1.5 of the ideal</source>
        <translation>De la mitad a 1,5 del ideal</translation>
    </message>
    <message>
        <source>Dit</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Dah</source>
        <translation>Raya</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Letter space</source>
        <translation>Espacio entre letras</translation>
    </message>
    <message>
        <source>Word space</source>
        <translation>Espacio entre palabras</translation>
    </message>
    <message>
        <source>Right: %1 of %2</source>
        <translation>Correctos: %1 de %2</translation>
    </message>
    <message>
        <source>space</source>
        <translation>espacio</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1 por %2</translation>
    </message>
    <message>
        <source>no %1</source>
        <translation>sin %1</translation>
    </message>
    <message>
        <source>and %1</source>
        <translation>y %1</translation>
    </message>
    <message>
        <source>Send the text with the paddle.</source>
        <translation>Envíe el texto con las palas.</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::RegisterTable</name>
    <message>
        <source>Registers</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopePage</name>
    <message>
        <source>Place in the last ten minutes</source>
        <translation>Lugar en los últimos diez minutos</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause the scope</source>
        <translation>Pausar el osciloscopio</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Más cerca</translation>
    </message>
    <message>
        <source>Less time, closer</source>
        <translation>Menos tiempo, más cerca</translation>
    </message>
    <message>
        <source>Wider</source>
        <translation>Más amplio</translation>
    </message>
    <message>
        <source>More time, wider</source>
        <translation>Más tiempo, más amplio</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Imagen…</translation>
    </message>
    <message>
        <source>Save a picture</source>
        <translation>Guardar una imagen</translation>
    </message>
    <message>
        <source>Table…</source>
        <translation>Tabla…</translation>
    </message>
    <message>
        <source>Save a table of the last ten minutes</source>
        <translation>Guardar una tabla de los últimos diez minutos</translation>
    </message>
    <message>
        <source>Save a table</source>
        <translation>Guardar una tabla</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::ScopeView</name>
    <message>
        <source>Scope of key and PTT</source>
        <translation>Osciloscopio de manipulador y PTT</translation>
    </message>
    <message>
        <source>Arrows move the first cursor, with Shift the second, with Ctrl from edge to edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go through the last ten minutes.</source>
        <translation>Las flechas mueven el primer cursor, con Mayús el segundo, con Ctrl de flanco en flanco. + y - cambian la escala, la barra espaciadora pausa; Re Pág, Av Pág, Inicio y Fin recorren los últimos diez minutos.</translation>
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
        <translation>Manipulador</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Said by</source>
        <translation>Dicho por</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>En palabras</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
</context>
<context>
    <name>virtualkeyer::WireLogPage</name>
    <message>
        <source>Said by</source>
        <translation>Dicho por</translation>
    </message>
    <message>
        <source>Host and keyer</source>
        <translation>Host y manipulador</translation>
    </message>
    <message>
        <source>The host alone</source>
        <translation>Solo el host</translation>
    </message>
    <message>
        <source>The keyer alone</source>
        <translation>Solo el manipulador</translation>
    </message>
    <message>
        <source>Filter of the log</source>
        <translation>Filtro del registro</translation>
    </message>
    <message>
        <source>Words or bytes</source>
        <translation>Palabras o bytes</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Vaciar el registro</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Guardar el registro</translation>
    </message>
    <message>
        <source>Saves what is shown, with all its bytes.</source>
        <translation>Guarda lo que se muestra, con todos los bytes.</translation>
    </message>
    <message>
        <source>Log of the line</source>
        <translation>Registro de la línea</translation>
    </message>
</context>
</TS>
