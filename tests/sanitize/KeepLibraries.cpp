// For programs under the leak checker. It runs at the very end, when the toolkit has unloaded the driver of the screen, and then takes for
// lost what that driver's own variables still point to. Libraries stay loaded instead.

extern "C" int dlclose(void* pLibrary);

int dlclose(void* /*pLibrary*/)
{
    return 0;
}
