package orvane.str.diskarray;

/** A cache status whose failAt'th construction throws. */
public class CacheStatus {
    public static int failAt;
    public static int made;

    public int option;
    public int condition;

    public CacheStatus() {
        if (++made == failAt) throw new IllegalStateException("cache status " + made);
    }
}
