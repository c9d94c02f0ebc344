// Placeholder: settings, start-up, single instance, tray state and version check land here.
