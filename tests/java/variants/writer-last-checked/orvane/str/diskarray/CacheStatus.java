package orvane.str.diskarray;

/** Lacks condition, the last field whose failure drops the object. */
public class CacheStatus {
    public int option;
    public int condition_absent;
}
