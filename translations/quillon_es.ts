<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>Desconocido...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>Otro programa está usando el archivo.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>No queda espacio en el disco.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>No se pudo leer el disco o escribir en él.</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>No se pudieron guardar las reglas y el historial. Se conservan mientras Quillon esté abierto. %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>Los datos los escribió una versión más reciente de Quillon</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>Quedan intactos; para usarlos, instale de nuevo esa versión: %@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>No se pueden abrir los datos</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

Las reglas y el historial están en este archivo, que se deja como está: %@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>La configuración está dañada</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>Quillon continúa con lo que conoce o con sus valores predeterminados. El archivo dañado se dejó como estaba: %@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>La configuración estaba dañada</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>Quillon continúa con lo que conoce o con sus valores predeterminados. El archivo dañado se conserva: %@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>No se puede leer la configuración</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>Quillon usa sus valores predeterminados y no toca el archivo: %@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>No se puede guardar la configuración</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>Los cambios duran hasta salir de Quillon. Compruebe los permisos de %@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>No queda espacio en el disco. Los cambios duran hasta salir de Quillon: %@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si se sale ahora, se perderán todos los cambios hechos desde la última vez que se guardó</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>La cuenta contiene cambios de una versión más reciente de Quillon. Actualícelo aquí para recibirlos.</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>Un archivo de la cuenta está dañado, o alguien lo ha cambiado. Se deja como está.</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>La contraseña de la cuenta no está en el depósito de claves. Inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>Lo que hay que sincronizar no se pudo guardar en este equipo.</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>Esta cuenta es nueva. Repita la frase de contraseña.</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>Las dos frases de contraseña son distintas.</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>La frase de contraseña es demasiado corta: necesita al menos ocho caracteres.</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>La cuenta tiene otra frase de contraseña.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>El archivo de clave de la cuenta está dañado. Restaure una copia más antigua.</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>La cuenta se creó con una versión más reciente de Quillon.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>Falta el archivo de clave de la cuenta. Un equipo con la sesión iniciada lo repone en su próxima sincronización.</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>Este equipo no tiene ahora bastante memoria libre para ello.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Elija una carpeta.</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>Escriba la dirección del servidor.</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>Escriba un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>Escriba una frase de contraseña.</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ no liberó la interfaz</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>Solo puede cambiarla una sesión abierta en este mismo equipo</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>Compruebe que la herramienta auxiliar está instalada</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ da a esta red una dirección propia. Búsquela en la configuración de la red</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>Compruebe que el dispositivo está activado</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@: dirección cambiada</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>La nueva dirección MAC es: %@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>Conéctela de nuevo con el programa que la gestiona</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>Conéctela de nuevo con %@</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ no se ha vuelto a conectar</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ conserva la dirección IP anterior</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ conserva una dirección IPv6 formada con la anterior</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@: la dirección podría ser sustituida</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>Esta sesión no puede controlar %@. La nueva dirección vale hasta que la interfaz se conecte la próxima vez</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>La nueva dirección y la anterior son idénticas</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@: dirección sustituida</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>Otro programa pone una y otra vez su propia dirección. La regla actuará de nuevo al conectarse a una red</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@: dirección no cambiada</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>La interfaz no dice qué dirección tiene ahora.</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>Cambiada: esta es ahora la dirección en uso.</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>No se cambió: %@.</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>Aún sin conexión: compruebe luego la dirección.</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>Cambiada, pero no a la dirección pedida.</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>La dirección no se cambió.</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ tiene ahora %@ en lugar de %@.</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ gestiona esta interfaz.</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ muestra otra dirección</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>Aplicar de nuevo</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Esto no es un archivo.</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>Mostrar la ventana</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>Aleatorizar la dirección</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>Atajo para «%@» no establecido</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>Un atajo necesita Ctrl, Alt o Meta y una tecla más.</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>Otro programa usa este atajo.</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>El escritorio rechazó este atajo.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Este teclado no tiene esa tecla.</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>Este escritorio no permite que los programas establezcan atajos globales.</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>Quillon necesita los servicios de ubicación para conocer los detalles de la red actual</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>El acceso se da a Quillon en Configuración del sistema &gt; Privacidad y seguridad &gt; Privacidad &gt; Servicios de ubicación</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>Dirección aleatoria</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>Sin conexión en este momento...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA personal</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA personal mixta</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 personal</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>Personal</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>WEP dinámica</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA empresarial</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA empresarial mixta</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 empresarial</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>Empresarial</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>Esta cuenta se puede usar.</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>Esta cuenta se puede usar. Configúrela en un equipo tras otro: su servidor no nota cuándo dos escriben en el mismo momento.</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>El servidor no aceptó este nombre y esta contraseña.</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>Esta carpeta no está en este momento.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>No se puede acceder al servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>El certificado del servidor no es de confianza.</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>No se puede escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>No queda espacio en esta carpeta.</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>No queda espacio en esta cuenta.</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>La cuenta no admite archivos de este tamaño.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Esto no es una carpeta.</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>El servidor no muestra archivos en esta dirección. Si pide un segundo factor, use una contraseña de aplicación.</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>La cuenta no funcionó como se esperaba. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>Inicia Quillon con la sesión</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>En esta sesión no hay un depósito de claves donde guardar la contraseña.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>El depósito de claves no se desbloqueó.</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>El depósito de claves no respondió.</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>Quillon no está en la barra de estado</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>Este escritorio no muestra iconos de estado. Minimice la ventana para que Quillon siga abierto: al cerrarla, Quillon termina.</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>Sesión iniciada en la carpeta %@</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>Sesión iniciada como %@ en %@</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>Sesión cerrada. Reglas, historial y configuración permanecen en este equipo.</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>Buscando los archivos…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>Probando lo que admite la cuenta…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>Abriendo la cuenta con la frase de contraseña…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>Esperando al depósito de claves…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>Escriba la ruta completa de la carpeta.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Escriba la dirección del servidor.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Escriba su nombre de usuario.</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>Escriba una contraseña de aplicación.</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Las dos frases de contraseña no son iguales.</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>La entrada se ha eliminado.</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>Se guardó %Ln elemento. Guarde de nuevo para más.</numerusform>
            <numerusform>Se guardaron %Ln elementos. Guarde de nuevo para más.</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>No se pudieron leer las entradas.</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>No se pudo escribir el archivo. %@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Buscando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>%Ln entrada seleccionada</numerusform>
            <numerusform>%Ln entradas seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>Nada contiene «%@». Se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>Aquí figura cada cambio de dirección.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Eliminando…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>Entrada eliminada</numerusform>
            <numerusform>%Ln entradas eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>No se pudieron eliminar las entradas.</translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>¿Eliminar %Ln entrada?</numerusform>
            <numerusform>¿Eliminar %Ln entradas?</numerusform>
        </translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>Tantas entradas a la vez no se pueden recuperar.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln dirección</numerusform>
            <numerusform>%Ln direcciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln red</numerusform>
            <numerusform>%Ln redes</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>En el historial no hay nada que no esté guardado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>%Ln red añadida.</numerusform>
            <numerusform>%Ln redes añadidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>%Ln dirección añadida.</numerusform>
            <numerusform>%Ln direcciones añadidas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>Añadido: %@ y %@.</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>No se puede leer el historial.</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ Son los %@ elementos más recientes; importe de nuevo para ver más.</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>Hoy %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>Ayer %@</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>%@ %@</source>
        <translation>%@ %@</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>Buscar en todos los campos</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>Buscar dispositivos</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>Buscar interfaces</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>Buscar direcciones</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>Buscar nombres de red</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>Buscar BSSID</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>Buscar notas</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ recibió %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) recibió %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) recibió %@ en %@.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln entrada</numerusform>
            <numerusform>%Ln entradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ de %Ln entrada</numerusform>
            <numerusform>%@ de %Ln entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>Nueva regla de red…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>Nueva regla de inicio de sesión…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@Dirección de hardware · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@Dirección actual · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Aleatorizar</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@Reanudar el temporizador</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@Pausar el temporizador</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Todavía no está en esta versión</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>Abrir Quillon</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vista general</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>Redes y direcciones guardadas</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>Acerca de Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Salir de Quillon</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>Consulta desactivada</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>Se pregunta a un servicio público con qué dirección ve este equipo.</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>El servicio público no respondió. Esto es lo que dijo antes. El botón pregunta de nuevo.</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>El servicio público no respondió con una dirección. El botón pregunta de nuevo.</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>No se consulta automáticamente. El botón pregunta una vez a un servicio público.</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>Quitar la red de los favoritos</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>Añadir la red a los favoritos</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>Quitar la dirección de los favoritos</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>Añadir la dirección a los favoritos</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>Nombre de la red</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruido</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>La Wi-Fi está apagada.</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>Escríbala con dos puntos: %@.</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>Esto no es una dirección MAC.</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>Una dirección MAC tiene 12 dígitos hexadecimales.</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ ya se ha guardado.</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>Una red también necesita su nombre.</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>Dirección de grupo: la mayoría de adaptadores la rechaza.</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>Favorito quitado</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>Configurar %@</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>No está presente</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>Cambiando…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>La dirección es ahora %@.</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>La dirección se está cambiando</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>La interfaz no está presente</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>La herramienta auxiliar no está instalada</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>No se conoce la dirección de fábrica de la interfaz</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>La interfaz tiene su dirección de fábrica</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>Da a la interfaz una dirección aleatoria, administrada localmente</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>Devuelve a la interfaz su dirección de hardware</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>Leer la licencia</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>La licencia en la web</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>Dónde se registran los fabricantes</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Versión %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 3 o cualquier versión posterior. Se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>Ningún programa abre aquí %@</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>Herramienta auxiliar: instalada, versión %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>Herramienta auxiliar: no instalada</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>Herramienta auxiliar: anticuada, versión %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>Aún no hay cuenta: no hay con qué sincronizar.</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>No mientras este escritorio no muestre iconos de estado.</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>Solo con el icono en la barra de estado.</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>ningún programa conocido</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>Este escritorio no inicia programas con la sesión por sí mismo.</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>Desde aquí no se sabe si este escritorio inicia programas con la sesión.</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>El programa que inicia Quillon con la sesión no está instalado.</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>La entrada de inicio automático falta o no se puede escribir. Desactive esta opción y vuelva a activarla para crearla de nuevo.</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>Aún hay una entrada de inicio automático. Active esta opción y vuelva a desactivarla para quitarla.</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>El escritorio tiene Quillon desactivado en su propia lista. Desactive esta opción y vuelva a activarla para que se inicie.</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>La entrada de inicio automático es solo para otros escritorios. Desactive esta opción y vuelva a activarla para que actúe aquí.</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>Hay una entrada de inicio automático propia: se deja como está.</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>Datos de fabricantes</translation>
    </message>
    <message>
        <source>RulesPreferences_en</source>
        <translation>RulesPreferences_en</translation>
    </message>
    <message>
        <source>UpdatePreferences_en</source>
        <translation>UpdatePreferences_en</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>Pulse un atajo</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>Escape conserva el atajo anterior, Retroceso lo borra.</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>Esta tecla no puede formar parte de un atajo.</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Grabar un atajo</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>El escritorio tiene la última palabra: su configuración muestra las teclas que actúan.</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>«%@» usa este atajo.</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>Cualquier red</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>Una red desconocida</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>Aquí no se puede cambiar ninguna interfaz.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>La regla se hizo para %@, que ya no está aquí.</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>Las reglas de inicio de sesión no actúan sobre la Wi-Fi.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>La regla se hizo para %@, que ya no está en las guardadas.</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ no está en las guardadas: pulse antes su corazón.</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>«%@» no es un fabricante: elija uno de la lista.</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>Las direcciones repetidas tienen el fabricante de la ventana principal, no este.</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>Guarde o cancele esta regla antes de empezar otra.</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>La regla que estaba abierta ya no existe.</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>Se desactivó otra regla para esta interfaz y esta red: solo una puede estar activa.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>Ahora no se puede acceder a Internet.</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>El lugar donde buscar no es una dirección https.</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>No se pudo obtener la lista de versiones.</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>Lo recibido no es de los autores de Quillon y no se usó.</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>La lista de versiones recibida está anticuada y no se usó.</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>Las versiones nuevas llegan con las actualizaciones del sistema.</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>Se compiló sin una lista de versiones que consultar. No se consulta nada, se elija lo que se elija aquí.</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>Última comprobación: %@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>Todavía no se ha comprobado.</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>Quillon %@ está disponible</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>Esta es la versión %@.</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>Quillon %@ es la versión más reciente.</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>No se pudo abrir ningún navegador.</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>Falta la lista de fabricantes.</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>Ningún fabricante empieza por «%@».</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>%@ identificador de fabricante</numerusform>
            <numerusform>%@ identificadores de fabricantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>Actualizar la base de datos</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>Obteniendo información de la descarga...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>Actualizando el número de identificadores...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>Cancelar la descarga...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>Descargando... %@&#xa0;MB</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>Descargando... %@&#xa0;% de %@&#xa0;MB</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>Descarga cancelada...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>Procesando los datos...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>No se pudo analizar el archivo...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>Última actualización: %@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>Restaurando la base de datos anterior...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>No se pudo restaurar...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>Contando los identificadores...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>Esta es la dirección en uso. Para cambiarla, escriba o suelte aquí otra.</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>Intro o «Aplicar» para usar esta dirección.</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>Instale la herramienta auxiliar para cambiar la dirección.</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>Esta interfaz no está presente: elija otra.</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>No hay ninguna interfaz seleccionada cuya dirección se pueda cambiar</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>La interfaz seleccionada no está presente</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>El campo no contiene otra dirección que aplicar</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>Cambiar una dirección requiere derechos de administrador, que Quillon nunca tiene. Una pequeña herramienta auxiliar hace el cambio y nada más. Instalarla pide una vez la contraseña de un administrador; en Preferencias › Avanzado se puede quitar.</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(en pausa)</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...nueva dirección MAC en %@</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Temporizador de Quillon iniciado</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>En su lugar rige «%@»: se creó primero.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>En su lugar rige «%@»: esta red no está guardada.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>En su lugar rige «%@»: se creó para esta red.</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>No rige: %@ no está en ninguna red.</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>No rige: la red en uso está guardada.</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>No rige: se usa otra red.</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>No rige: está desactivada.</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>No rige: %@ no está presente.</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>No rige: las reglas de inicio de sesión no actúan sobre la Wi-Fi.</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>Rige: actúa cuando Quillon se inicia con la sesión.</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>Rige ahora.</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>Rige, pero %@ no tiene conexión.</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>No rige ahora.</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>En %@, dejar %@ como está.</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>En cualquier red, dejar %@ como está.</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>En una red desconocida, dejar %@ como está.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>En %@, dar una vez a %@ una dirección aleatoria.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>En cualquier red, dar una vez a %@ una dirección aleatoria.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>En una red desconocida, dar una vez a %@ una dirección aleatoria.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>Al iniciar sesión, dar a %@ una dirección aleatoria.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>En %@, dar una vez a %@ una dirección aleatoria de %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>En cualquier red, dar una vez a %@ una dirección aleatoria de %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>En una red desconocida, dar una vez a %@ una dirección aleatoria de %@.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>Al iniciar sesión, dar a %@ una dirección aleatoria de %@.</translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>En %@, dar a %@ una nueva dirección aleatoria cada minuto.</numerusform>
            <numerusform>En %@, dar a %@ una nueva dirección aleatoria cada %n minutos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>En cualquier red, dar a %@ una nueva dirección aleatoria cada minuto.</numerusform>
            <numerusform>En cualquier red, dar a %@ una nueva dirección aleatoria cada %n minutos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>En una red desconocida, dar a %@ una nueva dirección aleatoria cada minuto.</numerusform>
            <numerusform>En una red desconocida, dar a %@ una nueva dirección aleatoria cada %n minutos.</numerusform>
        </translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>En %@, dar a %@ la dirección %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>En cualquier red, dar a %@ la dirección %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>En una red desconocida, dar a %@ la dirección %@.</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>Al iniciar sesión, dar a %@ la dirección %@.</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>Hay una regla activa</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>Ninguna regla está activa ahora</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>No se ha configurado ninguna regla</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>Inicie sesión en iCloud</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>Abra Configuración del sistema e inicie sesión en su cuenta de iCloud para sincronizar todos sus dispositivos.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>Su cuenta de iCloud ha cambiado. ¿Sincronizar con la nueva cuenta?</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>Esta pregunta aparece tras iniciar sesión en una nueva cuenta de iCloud y tras restaurar el equipo desde una copia de seguridad.</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>actualizaciones recibidas</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>Cuenta…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>Inicia sesión en la cuenta con la que sincronizar</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>Olvida la cuenta y sus contraseñas en este equipo</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>Cuenta para sincronizar</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>Tipo de cuenta</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>Dónde están los archivos de la cuenta</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud o WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>Cifra lo que se guarda. La misma en todos los equipos; sin ella no se puede leer nada.</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Frase de contraseña</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>La configuración de este equipo sustituye lo que contiene la cuenta.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>Su dirección, o la de los archivos que hay en él, como la muestra un navegador</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>El nombre en este servidor</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>Contraseña de aplicación</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>Se crea en los ajustes de seguridad de la cuenta en el servidor</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>Se guarda en el depósito de claves.</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>Una que otro programa mantenga igual en todos los equipos.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>La busca entre los archivos</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>Repetir la frase de contraseña</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>La cuenta es nueva: nadie podrá decir después qué se escribió</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>Esta es la huella SHA-256 del certificado del servidor. Acéptela solo si el administrador del servidor le indica la misma.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>Copiar la huella</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>Para compararla en otra ventana</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>Aceptar el certificado</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>Inicia sesión y confía desde ahora en este certificado para esta cuenta</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>Abandona lo que está en curso, o cierra</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>Prueba la cuenta y activa la sincronización</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>Intro guarda la nota, Escape la descarta.</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>F2 edita la nota, Supr elimina.</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>Guardar direcciones</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>Añade las direcciones de las entradas seleccionadas a las guardadas.</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>Guardar redes</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>Añade las redes de las entradas seleccionadas a las guardadas.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>Escribe lo mostrado en un archivo que leen las hojas de cálculo.</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>Elimina las entradas seleccionadas.</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>Se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>Lo hecho, hecho queda.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>Editar la nota</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>Invertir el orden</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Exportar el historial</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>Menú Archivo</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>Menú Archivo (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>Dirección externa</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>Actualizar la dirección externa</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>Pregunta a un servicio público con qué dirección ve este equipo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nombre (opcional)</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>Direcciones guardadas</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>El corazón añade la dirección actual.</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>Editar los elementos guardados</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>Abre la ventana de redes y direcciones guardadas</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>Pulse una dirección para ponerla en el campo, o arrástrela allí.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Redes</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>Conéctese a una red y pulse su corazón.</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>Red…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>Guardar una red a mano</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Direcciones</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>Abra las direcciones guardadas y pulse el corazón.</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>Dirección…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>Guardar una dirección a mano</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>Importar del historial</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importando…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>Guardar las direcciones y redes que conoce el historial</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>Reconocer por</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>Nombre %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>Punto de acceso %@</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>Pausar la cuenta atrás de %@</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>Reanudar la cuenta atrás de %@</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>Cuenta atrás en pausa</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>Cuenta atrás reanudada</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Cambiada</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>Hardware %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>Fabricante %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Dirección actual</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>Interfaces</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>Aleatorizando…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>Reglas de %@</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>Aleatorizar %@</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>Aleatorizando %@</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>Restaurar la dirección de hardware de %@</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>Restaurando la dirección de hardware de %@</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Recar&amp;gar</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>Lee de nuevo las interfaces y sus direcciones</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>Hay interfaces que aún no figuran aquí.</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>La lista muestra las direcciones que había al abrirla.</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>Falta la herramienta auxiliar</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Instalando…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>Instalar la herramienta auxiliar</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>Pide la contraseña de un administrador</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>De los autores de Quillon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>Preguntar cuando otro programa sustituya una dirección</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>Quién gestiona cada interfaz</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>Desinstalando…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>Repetir cada %@ minutos de forma predeterminada</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>Para las reglas cuyos minutos se dejan vacíos</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>Letras de las direcciones</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>Consultar la dirección externa</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>Pregunta a un servicio público cada vez que cambia la red.</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>Iniciar Quillon con la sesión</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>No abrir la ventana al iniciar sesión</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>Mostrar en la barra de estado</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>Ocultar de la barra de tareas</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostrar notificaciones</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>Atajos que funcionan en todas las ventanas</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>Sincronizar configuración, reglas e historial</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>Atajo para «%@»</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>Borrar el atajo para «%@»</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>Cuenta atrás terminada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>Regla eliminada</numerusform>
            <numerusform>%Ln reglas eliminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>Guardar la regla</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>No hacer nada</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Cambiar la dirección</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Una vez</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Cada</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>Nueva dirección aleatoria</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>Crea una dirección aleatoria, la guarda y la usa cada vez que actúa la regla</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>Las reglas nuevas empiezan desactivadas.</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>Intro para cambiar el nombre de la regla</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>Regla activa</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>Ninguna regla activa</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>Ninguna regla</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>No hay ninguna regla para esta interfaz.</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>Editar las reglas</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>Abre el editor de reglas</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>Las reglas cambian la dirección al conectarse a una red.</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>Nueva regla de red</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>Regla de red</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>Nueva regla de red</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>Regla de inicio de sesión</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>Nueva regla de inicio de sesión</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>Editar la regla (Intro)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>Duplicar las reglas (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>Eliminar las reglas (Supr)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>Elementos guardados</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Abrir la página</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>Mostrarlo en el centro de software o en el navegador</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Buscar versiones nuevas</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>Abrir la página de una versión nueva</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>Esta copia de Quillon no busca versiones nuevas.</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>Al momento, en el centro de software o el navegador. Quillon no descarga ni instala nada.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Buscando…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>Solo mientras Quillon busca por sí mismo</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>Pausar o reanudar el temporizador</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>Abrir las preferencias donde se descarga la lista de fabricantes</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>&amp;Fabricante</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>Fabricante de las direcciones aleatorias</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>Escriba el principio de un nombre y elija en la lista</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>Ocultar los fabricantes</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>Mostrar los fabricantes</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>Recuperar los fabricantes de antes de la última actualización</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>Se están recuperando los fabricantes de antes de la última actualización</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>No mientras se actualiza la base de datos</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>No hay fabricantes de antes de una actualización</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>No mientras se recuperan los fabricantes anteriores</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>Restaurar los anteriores</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Fabricantes</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>No se conocen la señal ni el ruido</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>Señal %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>Ruido %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>Señal %@, ruido %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>Señal y ruido de los últimos cinco minutos</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutos</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>Dónde buscar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>Aleato&amp;rizar</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>&amp;Dirección</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>La dirección en uso no es la dirección de hardware</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>Aplicar la dirección</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>Cambiada: la dirección en uso no es la dirección de hardware</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>Doce dígitos hexadecimales. Intro aplica la dirección.</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>Da a la interfaz la dirección del campo</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>Doce dígitos hexadecimales, con o sin dos puntos. Intro aplica la dirección.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>La dirección con la que se fabricó el dispositivo.</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>Restaurar la dirección de hardware</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Restaurando…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>Devuelve a la interfaz la dirección con la que se fabricó</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>Dirección de hardware</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>Enlace activo</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>Enlace inactivo</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Dirección IPv4</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>La interfaz de red cuya dirección se muestra y se cambia</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>¿Qué es la herramienta auxiliar?</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>Acerca de la herramienta auxiliar</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>Nota sobre la herramienta auxiliar</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>Las novedades están en Preferencias › Actualizaciones.</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>Solo una dirección aleatoria tiene fabricante</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>No hay ninguna interfaz seleccionada para la que elegir un fabricante</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (%@ identificador nuevo)</numerusform>
            <numerusform>%@ (%@ identificadores nuevos)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>Buscando el fabricante...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>Sin información del fabricante...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>%Ln entrada exportada</numerusform>
            <numerusform>%Ln entradas exportadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>Inicie sesión primero en la cuenta.</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>Escriba la frase de contraseña actual.</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>Escriba una frase de contraseña nueva.</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>La frase de contraseña nueva es la misma que la actual.</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>Otro equipo acaba de cambiar el archivo de clave. Inténtelo de nuevo con la frase de contraseña que vale ahora.</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>Se perdió la conexión. La cuenta se abre ahora con la frase de contraseña nueva o con la anterior.</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>Otro equipo ha cambiado la frase de contraseña al mismo tiempo. Ahora vale la suya.</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>Esta no es la frase de contraseña actual.</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>La cuenta contiene otra clave: alguien la ha creado de nuevo o la ha cambiado. No se sincroniza nada hasta que inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>Leyendo el archivo de clave de la cuenta…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>Escribiendo el archivo de clave de la cuenta…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>La frase de contraseña se ha cambiado. Los demás equipos siguen con la sesión iniciada.</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>Lo que la red aún ve</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>Lo que la red de %@ aún ve</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>No hay ninguna interfaz seleccionada.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>Aparte de la dirección, no se conoce nada que delate este equipo.</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>Formado con la dirección actual</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>Formado con la dirección de hardware</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>Formado con otra dirección</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>Creado para esta red</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>Creado para este equipo</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>Cambia con la dirección.</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>Cambia automáticamente pasado un tiempo.</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>Sigue igual en esta red.</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>Sigue igual en todas las redes.</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>Delata la dirección de hardware.</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>Delata una dirección anterior o la de otra interfaz.</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>El programa que lo establece no da información.</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>No se sabe si cambia con la dirección.</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>Se mantuvo tras el cambio, desde %@.</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>Para mostrar menos: %@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>Para mostrar menos, en %@: %@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>Nombre enviado por DHCP</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>Identificador de cliente DHCP</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>Identificador DHCPv6 (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>Dirección IPv6</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>Más direcciones IPv6</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>Nombre anunciado por mDNS</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>Nombre anunciado por LLMNR</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>Nombre de usuario (802.1X)</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>Cambiar la frase…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>Da a la cuenta otra frase de contraseña, para todos los equipos</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>Cambiar frase de contraseña</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>Desde entonces la frase de contraseña nueva abre la cuenta</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>Frase de contraseña actual</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>La que usó para iniciar sesión</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Frase de contraseña nueva</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>Al menos ocho caracteres. Nadie podrá decir después qué se escribió.</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>Repetir la frase de contraseña nueva</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>La misma otra vez</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>Los demás equipos siguen con la sesión iniciada. Las copias de la cuenta hechas antes se siguen abriendo con la frase de contraseña actual.</translation>
    </message>
</context>
</TS>
