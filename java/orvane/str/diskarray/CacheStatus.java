package orvane.str.diskarray;

public class CacheStatus {
    public int option;
    public int condition;
}
