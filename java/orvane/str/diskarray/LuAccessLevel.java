package orvane.str.diskarray;

public class LuAccessLevel {
    public int lu;
    public int access_level;
    public int retention_term;
}
