package orvane.str.diskarray;

/** The exception the bridge throws for every reported result code. */
public class DiskArrayException extends Exception {
    private final int code;

    public DiskArrayException(int code) {
        super("result code " + code);
        this.code = code;
    }

    public int getCode() {
        return code;
    }
}
